#include "escaped.hpp"

#include <zu/any_value.hpp>
#include <zu/dispatch.hpp>
#include <zu/type/int.hpp>
#include <zu/type/pointer.hpp>
#include <zu/walk.hpp>

#include <array>
#include <charconv>
#include <ostream>
#include <string>
#include <utility>

namespace zu {

namespace {

constexpr std::size_t k_shownBytes = 32;

class Printer final : public TypeVisitor
{
public:
    /// @return false when the value lies beyond the limits, as do those that come behind it in the same container.
    bool print(const AnyReferenceBase& value)
    {
        const Walk::Step step(m_walk, value);
        if (!step) {
            text += "...";
        } else if (value.isEmpty()) {
            text += "nothing";
        } else if (isDescriptor(value.kind())) {
            printType(value);
        } else if (const std::string_view name = nameOf(value); !name.empty()) {
            text += name;
        } else {
            m_value = &value;
            dispatch(value, *this);
        }
        return static_cast<bool>(step);
    }

    void visitVoid() override { text += "void"; }
    void visitUnknown(const AnyReference& value) override { printType(value); }
    void visitObject(const AnyReference& object) override { printType(object); }
    void visitIterator(const AnyReference& iterator) override { printType(iterator); }

    void visitInt(std::int64_t number, bool isSigned, unsigned byteSize) override
    {
        if (byteSize == 0)
            text += number != 0 ? "true" : "false";
        else if (isSigned)
            text += std::to_string(number);
        else
            text += std::to_string(static_cast<std::uint64_t>(number));
    }

    /// With as many digits as tell the number from all others of its type.
    void visitFloat(double number, unsigned byteSize) override
    {
        std::array<char, 32> digits{};
        char* const end = digits.data() + digits.size();
        const auto written = byteSize == sizeof(float) ? std::to_chars(digits.data(), end, static_cast<float>(number))
                                                       : std::to_chars(digits.data(), end, number);
        text.append(digits.data(), written.ptr);
    }

    void visitString(std::string_view string) override
    {
        text += '"';
        detail::appendEscaped(text, string, "\"\\");
        text += '"';
    }

    void visitRaw(std::string_view bytes) override
    {
        text += '<' + std::to_string(bytes.size()) + (bytes.size() == 1 ? " byte" : " bytes");
        for (const char byte : bytes.substr(0, k_shownBytes)) {
            text += ' ';
            text += k_digits[static_cast<unsigned char>(byte) >> 4];
            text += k_digits[static_cast<unsigned char>(byte) & 0xf];
        }
        text += bytes.size() > k_shownBytes ? " ...>" : ">";
    }

    void visitList(const AnyReference& list) override { printElements(list); }
    void visitVarArgs(const AnyReference& arguments) override { printElements(arguments); }

    void visitMap(const AnyReference& map) override
    {
        text += '{';
        const char* separator = "";
        for (const AnyReference entry : map) {
            text += std::exchange(separator, ", ");
            if (!print(entry._element(0)))
                break;
            text += ": ";
            print(entry._element(1));
        }
        text += '}';
    }

    void visitTuple(const std::string& className, const std::vector<AnyReference>& values,
                    const std::vector<std::string>& names) override
    {
        const bool isStruct = !className.empty() || !names.empty();
        text += className;
        text += isStruct ? '{' : '(';
        for (std::size_t i = 0; i != values.size(); ++i) {
            if (i != 0)
                text += ", ";
            if (i < names.size())
                text += names[i] + ": ";
            if (!print(values[i]))
                break;
        }
        text += isStruct ? '}' : ')';
    }

    void visitDynamic(const AnyReference& dynamic) override { print(dynamic.content()); }
    void visitOptional(const AnyReference& optional) override { print(optional.content()); }

    void visitPointer(PointerKind, const AnyReference& pointee) override
    {
        const auto& type = static_cast<const PointerTypeInterface&>(*m_value->type());
        text += pointee.isEmpty() ? "<null pointer to " : "<pointer to ";
        text += type.pointedType()->name() + '>';
    }

    std::string text;

private:
    static constexpr char k_digits[] = "0123456789abcdef";

    /// What dispatching only warns of.
    static bool isDescriptor(TypeKind kind)
    {
        return kind == TypeKind::Function || kind == TypeKind::Signal || kind == TypeKind::Property ||
               kindName(kind).empty();
    }

    static std::string_view nameOf(const AnyReferenceBase& value)
    {
        return value.kind() == TypeKind::Int ? value.enumName() : std::string_view();
    }

    void printType(const AnyReferenceBase& value) { text += '<' + value.type()->name() + '>'; }

    void printElements(const AnyReference& list)
    {
        text += '[';
        const char* separator = "";
        for (const AnyReference element : list) {
            text += std::exchange(separator, ", ");
            if (!print(element))
                break;
        }
        text += ']';
    }

    Walk m_walk;
    const AnyReferenceBase* m_value = nullptr; ///< the one that is dispatched
};

} // namespace

std::ostream& operator<<(std::ostream& stream, const AnyReferenceBase& value)
{
    Printer printer;
    printer.print(value);
    return stream.write(printer.text.data(), static_cast<std::streamsize>(printer.text.size()));
}

} // namespace zu
