#include "variant/vxvalueconverter.hpp"

#include "variant/vxarrays.hpp"
#include "variant/vxfailure.hpp"

#include <zu/dispatch.hpp>
#include <zu/native/object.hpp>
#include <zu/walk.hpp>

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
    explicit Converter(zu::Walk& walk) : m_walk(walk) {}

    VXValue convert(const zu::AnyReferenceBase& source)
    {
        const zu::Walk::Step step(m_walk, source);
        if (!step)
            refuse(step.refusal(), __LINE__);
        zu::dispatch(source, *this);
        return std::move(result);
    }

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
        for (const zu::AnyReference entry : map) {
            VXValue key = part(entry._element(0)); // before the value, whatever order the compiler prefers
            entries.push_back(pairOf(std::move(key), part(entry._element(1))));
        }
        result = VXValue::fromElements(std::move(entries));
    }

    void visitObject(const zu::AnyReference& /*object*/) override { refuseObject(); }

    void visitPointer(zu::PointerKind kind, const zu::AnyReference& pointee) override
    {
        if (kind == zu::PointerKind::Shared && pointee.kind() == zu::TypeKind::Object) // a null pointer has no object
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
        result = part(dynamic.content());
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

    VXValue part(const zu::AnyReferenceBase& source) const { return Converter(m_walk).convert(source); }

    void convertElements(const zu::AnyReference& list)
    {
        std::vector<VXValue> elements;
        for (const zu::AnyReference element : list)
            elements.push_back(part(element));
        result = VXValue::fromElements(std::move(elements));
    }

    zu::Walk& m_walk;
};

} // namespace

VXValue convertedFrom(const zu::AnyReferenceBase& source)
{
    zu::Walk walk;
    return Converter(walk).convert(source);
}

} // namespace VX
