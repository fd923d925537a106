#include "variant/vxvalueconverter.hpp"

#include "variant/vxarrays.hpp"
#include "variant/vxfailure.hpp"

#include <zu/conversion.hpp>
#include <zu/dispatch.hpp>
#include <zu/native/object.hpp>

namespace VX {

namespace {

[[noreturn]] void refuse(const std::string& message, int line)
{
    fail("conversion", message, {"src/vxvalueconverter.cpp", line});
}

/// Room behind the bytes of a Binary: callers of the old layer append to what they get.
constexpr std::size_t k_spareBytes = 1024;

class Converter : public zu::TypeVisitor
{
public:
    explicit Converter(int depth) : m_depth(depth) {}

    VXValue result;

    void visitUnknown(const zu::AnyReference& /*value*/) override { refuse("unknown type not handled", __LINE__); }
    void visitVoid() override {}

    void visitInt(std::int64_t number, bool /*isSigned*/, unsigned byteSize) override
    {
        if (byteSize == 0)
            result = VXValue(number != 0);
        else
            result = VXValue(static_cast<std::int32_t>(static_cast<std::uint32_t>(number)));
    }

    void visitFloat(double number, unsigned /*byteSize*/) override { result = VXValue(static_cast<float>(number)); }
    void visitString(std::string_view text) override { result = VXValue(TVXValueString(text)); }
    void visitList(const zu::AnyReference& list) override { convertElements(list); }

    void visitMap(const zu::AnyReference& map) override
    {
        std::vector<VXValue> entries;
        for (const zu::AnyReference entry : map)
            entries.push_back(pairOf(part(entry._element(0)), part(entry._element(1))));
        result = VXValue::fromElements(std::move(entries));
    }

    void visitObject(const zu::AnyReference& /*object*/) override { refuseObject(); }

    void visitPointer(zu::PointerKind kind, const zu::AnyReference& pointee) override
    {
        if (kind == zu::PointerKind::Shared && pointee.kind() == zu::TypeKind::Object)
            refuseObject();
        refuse("pointer type not handled", __LINE__);
    }

    void visitTuple(const std::string& /*className*/, const std::vector<zu::AnyReference>& values,
                    const std::vector<std::string>& names) override
    {
        if (!names.empty() && names.size() != values.size())
            refuse("Mismatch struct size. size(variableName) != size(value)", __LINE__);
        std::vector<VXValue> members;
        members.reserve(values.size());
        for (std::size_t i = 0; i < values.size(); ++i)
            members.push_back(names.empty() ? part(values[i]) : pairOf(VXValue(names[i]), part(values[i])));
        result = VXValue::fromElements(std::move(members));
    }

    void visitDynamic(const zu::AnyReference& dynamic) override
    {
        if (dynamic.holds<zu::Object<zu::Empty>>())
            refuseObject();
        // Not counted as a level, for every element of a dynamic list is one; unless dynamics hold each other.
        const zu::AnyReference content = dynamic.content();
        result = convertedFrom(content, content.kind() == zu::TypeKind::Dynamic ? m_depth + 1 : m_depth);
    }

    void visitRaw(std::string_view bytes) override
    {
        TVXValueBytes copy;
        copy.reserve(bytes.size() + k_spareBytes);
        copy.assign(bytes.begin(), bytes.end());
        result = VXValue::fromBytes(std::move(copy));
    }

    void visitIterator(const zu::AnyReference& /*iterator*/) override { refuse("iterator type not handled", __LINE__); }
    void visitVarArgs(const zu::AnyReference& arguments) override { convertElements(arguments); }
    void visitOptional(const zu::AnyReference& /*optional*/) override { refuse("optional type not handled", __LINE__); }

private:
    [[noreturn]] static void refuseObject() { refuse("object type not handled", __LINE__); }

    VXValue part(const zu::AnyReferenceBase& source) const { return convertedFrom(source, m_depth + 1); }

    void convertElements(const zu::AnyReference& list)
    {
        std::vector<VXValue> elements;
        for (const zu::AnyReference element : list)
            elements.push_back(part(element));
        result = VXValue::fromElements(std::move(elements));
    }

    const int m_depth;
};

} // namespace

VXValue convertedFrom(const zu::AnyReferenceBase& source, int depth)
{
    if (depth > zu::k_maxNesting)
        refuse("value nested deeper than " + std::to_string(zu::k_maxNesting) + " levels", __LINE__);
    Converter converter(depth);
    zu::dispatch(source, converter);
    return std::move(converter.result);
}

} // namespace VX
