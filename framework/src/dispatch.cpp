#include <zu/dispatch.hpp>
#include <zu/log.hpp>
#include <zu/type/float.hpp>
#include <zu/type/int.hpp>
#include <zu/type/struct.hpp>

namespace zu {

TypeVisitor::~TypeVisitor() = default;

namespace {

void warn(std::string_view message)
{
    static log::Category& category = log::addCategory("zutype.typedispatcher");
    log::write(category, log::Level::Warning, {"src/dispatch", "zu::dispatch", __LINE__}, message);
}

void dispatchInt(const AnyReference& value, TypeVisitor& visitor)
{
    const auto& type = static_cast<const IntTypeInterface&>(*value.type());
    visitor.visitInt(type.get(value.address()), type.isSigned(), type.byteSize());
}

void dispatchFloat(const AnyReference& value, TypeVisitor& visitor)
{
    const auto& type = static_cast<const FloatTypeInterface&>(*value.type());
    visitor.visitFloat(type.get(value.address()), type.byteSize());
}

void dispatchPointer(const AnyReference& value, TypeVisitor& visitor)
{
    const auto& type = static_cast<const PointerTypeInterface&>(*value.type());
    visitor.visitPointer(type.pointerKind(), value.content());
}

void dispatchTuple(const AnyReference& value, TypeVisitor& visitor)
{
    const auto& type = static_cast<const StructTypeInterface&>(*value.type());
    std::vector<AnyReference> values = type.values(const_cast<void*>(value.address()));
    if (value.isReadOnly()) {
        for (AnyReference& member : values)
            member = member.readOnly();
    }
    visitor.visitTuple(type.className(), values, type.elementsName());
}

/// The switch over the kinds, complete; the kind of a foreign interface may yet be none of them.
void dispatchByKind(const AnyReference& value, TypeVisitor& visitor)
{
    switch (value.kind()) {
    case TypeKind::Unknown:
        return visitor.visitUnknown(value);
    case TypeKind::Void:
        return visitor.visitVoid();
    case TypeKind::Int:
        return dispatchInt(value, visitor);
    case TypeKind::Float:
        return dispatchFloat(value, visitor);
    case TypeKind::String:
        return visitor.visitString(value.text());
    case TypeKind::List:
        return visitor.visitList(value);
    case TypeKind::Map:
        return visitor.visitMap(value);
    case TypeKind::Object:
        return visitor.visitObject(value);
    case TypeKind::Pointer:
        return dispatchPointer(value, visitor);
    case TypeKind::Tuple:
        return dispatchTuple(value, visitor);
    case TypeKind::Dynamic:
        return visitor.visitDynamic(value);
    case TypeKind::Raw:
        return visitor.visitRaw(value.rawBuffer());
    case TypeKind::Iterator:
        return visitor.visitIterator(value);
    case TypeKind::Function:
    case TypeKind::Signal:
    case TypeKind::Property:
        return warn("Signal and Property not handled");
    case TypeKind::VarArgs:
        return visitor.visitVarArgs(value);
    case TypeKind::Optional:
        return visitor.visitOptional(value);
    }
}

} // namespace

void dispatch(const AnyReferenceBase& value, TypeVisitor& visitor)
{
    if (value.isEmpty())
        warn("NULL type");
    else
        dispatchByKind(AnyReference(value), visitor);
}

} // namespace zu
