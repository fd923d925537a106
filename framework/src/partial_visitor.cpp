#include "kinds.hpp"

#include <zu/dispatch.hpp>
#include <zu/walk.hpp>

namespace zu {

using detail::isWrapper;

PartialVisitor::~PartialVisitor() = default;

void PartialVisitor::visitOther(TypeKind) {}

void PartialVisitor::visitUnknown(const AnyReference&) { visitOther(TypeKind::Unknown); }
void PartialVisitor::visitVoid() { visitOther(TypeKind::Void); }
void PartialVisitor::visitInt(std::int64_t, bool, unsigned) { visitOther(TypeKind::Int); }
void PartialVisitor::visitFloat(double, unsigned) { visitOther(TypeKind::Float); }
void PartialVisitor::visitString(std::string_view) { visitOther(TypeKind::String); }
void PartialVisitor::visitList(const AnyReference&) { visitOther(TypeKind::List); }
void PartialVisitor::visitMap(const AnyReference&) { visitOther(TypeKind::Map); }
void PartialVisitor::visitObject(const AnyReference&) { visitOther(TypeKind::Object); }
void PartialVisitor::visitPointer(PointerKind, const AnyReference&) { visitOther(TypeKind::Pointer); }
void PartialVisitor::visitRaw(std::string_view) { visitOther(TypeKind::Raw); }
void PartialVisitor::visitIterator(const AnyReference&) { visitOther(TypeKind::Iterator); }
void PartialVisitor::visitVarArgs(const AnyReference& arguments) { visitList(arguments); }

void PartialVisitor::visitTuple(const std::string&, const std::vector<AnyReference>&, const std::vector<std::string>&)
{
    visitOther(TypeKind::Tuple);
}

void PartialVisitor::visitDynamic(const AnyReference& dynamic) { visitContent(dynamic); }
void PartialVisitor::visitOptional(const AnyReference& optional) { visitContent(optional); }

void PartialVisitor::visitContent(const AnyReference& wrapper)
{
    AnyReference content = wrapper;
    for (int level = 0; isWrapper(content.kind()) && level != k_maxNesting; ++level)
        content = content.content();
    if (content.isEmpty() || isWrapper(content.kind()))
        visitOther(wrapper.kind());
    else
        dispatch(content, *this);
}

} // namespace zu
