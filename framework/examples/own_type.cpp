// A type of one's own kind: a value that is a number or a text, shown to the type system as a dynamic.
#include <zu/any_value.hpp>
#include <zu/conversion.hpp>
#include <zu/registry.hpp>
#include <zu/type/dynamic.hpp>

#include <iostream>
#include <stdexcept>
#include <string>
#include <variant>

namespace sheet {

struct Cell
{
    std::variant<std::monostate, double, std::string> content;
};

class CellType final : public zu::Native<Cell, zu::DynamicTypeInterface>
{
public:
    zu::AnyReference get(void* value) const override
    {
        auto& content = object(value).content;
        if (auto* number = std::get_if<double>(&content))
            return zu::AnyReference::from(*number);
        if (auto* text = std::get_if<std::string>(&content))
            return zu::AnyReference::from(*text);
        return zu::AnyReference();
    }

    void set(void* value, const zu::AnyReference& source) const override
    {
        if (auto number = source.tryTo<double>())
            object(value).content = *number;
        else if (auto text = source.tryTo<std::string>())
            object(value).content = std::move(*text);
        else
            throw std::invalid_argument("a cell holds a number or a text");
    }
};

const bool g_registered = zu::registerType(zu::TypeInfo::of<Cell>(), new CellType);

} // namespace sheet

int main()
{
    const auto row = zu::AnyValue::from(std::vector<zu::AnyValue>{zu::AnyValue::from(1), zu::AnyValue::from("two")});
    const auto cells = row.to<std::vector<sheet::Cell>>();
    std::cout << std::get<double>(cells[0].content) << ' ' << std::get<std::string>(cells[1].content) << '\n';
    std::cout << zu::AnyReference::from(cells[0]).to<int>() << '\n';

    sheet::Cell cell{"kept"};
    try {
        zu::AnyReference::from(cell).set(std::vector<int>{1});
    } catch (const std::invalid_argument& error) {
        std::cout << error.what() << "; it is " << std::get<std::string>(cell.content) << '\n';
    }
}
