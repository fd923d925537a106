#pragma once

#include <zu/any_value.hpp>
#include <zu/type/pointer.hpp>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace zu {

/// What dispatch() calls: one handler a kind, given what there is to see of a value of it. All are to be implemented,
/// so that a kind cannot be forgotten. References and views hold as long as the value is there and not changed.
class ZU_EXPORT TypeVisitor
{
public:
    virtual ~TypeVisitor();

    /// Nothing is known of the value but its type.
    virtual void visitUnknown(const AnyReference& value) = 0;

    /// A value of kind Void: there is nothing to be given of it.
    virtual void visitVoid() = 0;

    /// @param number    the value; of an unsigned type of 8 bytes its bits, to be cast to std::uint64_t
    /// @param byteSize  0 for bool
    virtual void visitInt(std::int64_t number, bool isSigned, unsigned byteSize) = 0;

    /// @param byteSize  4 for single, 8 for double precision
    virtual void visitFloat(double number, unsigned byteSize) = 0;

    /// The text with its length: zero bytes do not end it.
    virtual void visitString(std::string_view text) = 0;

    /// The list itself: its elements are had by begin() and end(), `_element(i)` and size().
    virtual void visitList(const AnyReference& list) = 0;

    /// Its elements are entries: `_element(0)` the key, `_element(1)` the value.
    virtual void visitMap(const AnyReference& map) = 0;

    /// The object itself, of which only the type can be told.
    virtual void visitObject(const AnyReference& object) = 0;

    /// @param pointee  what it points to; empty for a null pointer
    virtual void visitPointer(PointerKind kind, const AnyReference& pointee) = 0;

    /// @param className  empty for pairs and tuples
    /// @param names      the members' names in the order of `values`; empty for pairs and tuples. An interface that is
    ///                   wrong in itself may give another number of them.
    virtual void visitTuple(const std::string& className, const std::vector<AnyReference>& values,
                            const std::vector<std::string>& names) = 0;

    /// The dynamic itself; `content()` gives what it holds, an empty reference for nothing.
    virtual void visitDynamic(const AnyReference& dynamic) = 0;

    /// Address and number of the bytes; the address may be null when there are none.
    virtual void visitRaw(std::string_view bytes) = 0;

    /// The position itself; `AnyIterator(AnyValue(iterator))` walks on from a copy of it.
    virtual void visitIterator(const AnyReference& iterator) = 0;

    /// The arguments themselves, read like a list.
    virtual void visitVarArgs(const AnyReference& arguments) = 0;

    /// The optional itself; `content()` gives its value, an empty reference when it is absent.
    virtual void visitOptional(const AnyReference& optional) = 0;

protected:
    TypeVisitor() = default;

    /// For visitors to be copied as what they are, never as a mere base.
    TypeVisitor(const TypeVisitor&) = default;

    /// Likewise.
    TypeVisitor& operator=(const TypeVisitor&) = default;
};

/// A visitor for some kinds: what a handler is not overridden for comes to visitOther().
class ZU_EXPORT PartialVisitor : public TypeVisitor
{
public:
    ~PartialVisitor() override;

    void visitUnknown(const AnyReference& value) override;
    void visitVoid() override;
    void visitInt(std::int64_t number, bool isSigned, unsigned byteSize) override;
    void visitFloat(double number, unsigned byteSize) override;
    void visitString(std::string_view text) override;
    void visitList(const AnyReference& list) override;
    void visitMap(const AnyReference& map) override;
    void visitObject(const AnyReference& object) override;
    void visitPointer(PointerKind kind, const AnyReference& pointee) override;
    void visitTuple(const std::string& className, const std::vector<AnyReference>& values,
                    const std::vector<std::string>& names) override;

    /// Unlike the others this dispatches what is held in the end; where that is nothing, visitOther() is told.
    void visitDynamic(const AnyReference& dynamic) override;
    void visitRaw(std::string_view bytes) override;
    void visitIterator(const AnyReference& iterator) override;

    /// Calls visitList(): the two are read alike.
    void visitVarArgs(const AnyReference& arguments) override;

    /// Like visitDynamic().
    void visitOptional(const AnyReference& optional) override;

protected:
    PartialVisitor() = default;

    /// For visitors to be copied as what they are, never as a mere base.
    PartialVisitor(const PartialVisitor&) = default;

    /// Likewise.
    PartialVisitor& operator=(const PartialVisitor&) = default;

    /// Does nothing.
    virtual void visitOther(TypeKind kind);

private:
    void visitContent(const AnyReference& wrapper);
};

/// Calls the handler for the kind of `value`; what it throws comes out.
///
/// Without a call: an empty reference is reported with the warning "NULL type" to the category "zutype.typedispatcher",
/// a function, a signal or a property with "Signal and Property not handled"; a number that is no kind is passed over
/// in silence. Handlers that dispatch the parts of a value are well advised to do so within a Walk, for a value may be
/// nested as deep as memory goes, or contain itself.
ZU_EXPORT void dispatch(const AnyReferenceBase& value, TypeVisitor& visitor);

} // namespace zu
