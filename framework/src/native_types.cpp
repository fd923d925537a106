#include <zu/native/dynamic.hpp>
#include <zu/native/opaque.hpp>
#include <zu/native/text.hpp>
#include <zu/native/tuple.hpp>

#include <stdexcept>

namespace zu::detail {

namespace {

class VoidType final : public TypeInterface
{
public:
    VoidType() : TypeInterface(TypeInfo::of<void>(), TypeKind::Void) {}

    void* initializeStorage() const override { return nullptr; }
    void* clone(const void*) const override { return nullptr; }
    void destroy(void*) const override {}
    bool assign(void*, const void*) const override { return true; }
};

} // namespace

const TypeInterface* makeVoidType() { return new VoidType; }

const std::string& noName()
{
    static const auto& name = *new std::string;
    return name;
}

const std::vector<std::string>& noNames()
{
    static const auto& names = *new std::vector<std::string>;
    return names;
}

std::string_view NativeStringView::get(const void* value) const { return object(value); }

bool NativeStringView::isView() const noexcept { return true; }

void NativeStringView::set(void*, std::string_view) const
{
    throw std::logic_error("a std::string_view has no room for a text");
}

AnyReference NativeAnyValue::get(void* value) const { return object(value).reference(); }

void NativeAnyValue::set(void* value, const AnyReference& source) const { object(value) = AnyValue(source); }

AnyReference NativeAnyReference::get(void* value) const { return object(value); }

bool NativeAnyReference::ownsContent() const noexcept { return false; }

void NativeAnyReference::set(void* value, const AnyReference& source) const { object(value) = source; }

} // namespace zu::detail
