// A visitor that prints any value, however its types are nested.
#include <zu/dispatch.hpp>
#include <zu/walk.hpp>

#include <iostream>
#include <map>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace {

class Printer final : public zu::TypeVisitor
{
public:
    void print(const zu::AnyReferenceBase& value)
    {
        const zu::Walk::Step step(m_walk, value);
        if (!step) // a value may be nested without end
            throw std::length_error(step.refusal());
        zu::dispatch(value, *this);
    }

    void visitInt(std::int64_t number, bool isSigned, unsigned byteSize) override
    {
        if (byteSize == 0)
            std::cout << (number != 0 ? "true" : "false");
        else if (isSigned)
            std::cout << number;
        else
            std::cout << static_cast<std::uint64_t>(number);
    }
    void visitFloat(double number, unsigned) override { std::cout << number; }
    void visitString(std::string_view text) override { std::cout << '"' << text << '"'; }
    void visitRaw(std::string_view bytes) override { std::cout << bytes.size() << " bytes"; }

    void visitList(const zu::AnyReference& list) override
    {
        std::cout << "[ ";
        for (const zu::AnyReference element : list) {
            print(element);
            std::cout << ' ';
        }
        std::cout << ']';
    }
    void visitVarArgs(const zu::AnyReference& arguments) override { visitList(arguments); }

    void visitMap(const zu::AnyReference& map) override
    {
        std::cout << "{ ";
        for (const zu::AnyReference entry : map) {
            print(entry._element(0));
            std::cout << ": ";
            print(entry._element(1));
            std::cout << ' ';
        }
        std::cout << '}';
    }

    void visitTuple(const std::string& className, const std::vector<zu::AnyReference>& values,
                    const std::vector<std::string>& names) override
    {
        std::cout << className << "( ";
        for (std::size_t i = 0; i != values.size(); ++i) {
            if (i < names.size())
                std::cout << names[i] << '=';
            print(values[i]);
            std::cout << ' ';
        }
        std::cout << ')';
    }

    void visitDynamic(const zu::AnyReference& dynamic) override { printContent(dynamic.content()); }
    void visitOptional(const zu::AnyReference& optional) override { printContent(optional.content()); }
    void visitPointer(zu::PointerKind, const zu::AnyReference& pointee) override { printContent(pointee); }

    void visitVoid() override { std::cout << "void"; }
    void visitUnknown(const zu::AnyReference& value) override { printType(value); }
    void visitObject(const zu::AnyReference& object) override { printType(object); }
    void visitIterator(const zu::AnyReference& iterator) override { printType(iterator); }

private:
    void printContent(const zu::AnyReference& content)
    {
        if (content.isEmpty())
            std::cout << "nothing";
        else
            print(content);
    }
    static void printType(const zu::AnyReference& value) { std::cout << '<' << value.type()->name() << '>'; }

    zu::Walk m_walk;
};

} // namespace

int main()
{
    const std::map<std::string, zu::AnyValue> values{
        {"flag", zu::AnyValue::from(true)},
        {"list", zu::AnyValue::from(std::vector<double>{1.5, 2})},
        {"pair", zu::AnyValue::from(std::pair<int, std::string>(1, "one"))},
        {"void", zu::AnyValue()}};
    Printer().print(zu::AnyReference::from(values));
    std::cout << '\n';
}
