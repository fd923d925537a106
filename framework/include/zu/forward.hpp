#pragma once

/// The types of the host framework, declared and nothing else: for headers that only mention them, and for those that
/// say how the interface of a class of theirs is made (see NativeType) without needing the framework for more.
namespace zu {

class TypeInfo;
enum class TypeKind : int;
enum class PointerKind : int;

class TypeInterface;
class IntTypeInterface;
class FloatTypeInterface;
class StringTypeInterface;
class RawTypeInterface;
class ListTypeInterface;
class VarArgsTypeInterface;
class MapTypeInterface;
class IteratorTypeInterface;
class StructTypeInterface;
class DynamicTypeInterface;
class PointerTypeInterface;
class OptionalTypeInterface;
class FunctionTypeInterface;
class SignalTypeInterface;
class PropertyTypeInterface;
class ObjectTypeInterface;
class UnknownTypeInterface;

class AnyReferenceBase;
class AnyReference;
class AnyValue;
class AnyIterator;
class AnyArgument;

struct ConversionFailure;
class ConversionError;
class TypeVisitor;

/// How the interface of a C++ type is made when none is registered: the specialisation for T has a static function
/// `const TypeInterface* make()`. One for a class of one's own stands beside the class, wherever that is used with the
/// type system. The primary template serves the types that nothing is known of (kind Unknown).
template <class T, class = void>
struct NativeType;

} // namespace zu
