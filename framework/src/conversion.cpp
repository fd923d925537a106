#include "conversion_rules.hpp"

#include <zu/type/dynamic.hpp>
#include <zu/type/optional.hpp>
#include <zu/type/raw.hpp>
#include <zu/type/string.hpp>

#include <new>

namespace zu {

namespace {

using detail::Conversion;

bool stringToString(Conversion& conversion, const AnyReferenceBase& source, const AnyReference& target)
{
    const auto& type = static_cast<const StringTypeInterface&>(*target.type());
    if (type.isView())
        return conversion.fail([&type] { return type.name() + " has no room for a text"; });
    type.set(target.writableAddress(), source.text());
    return true;
}

bool rawToRaw(Conversion&, const AnyReferenceBase& source, const AnyReference& target)
{
    static_cast<const RawTypeInterface&>(*target.type()).set(target.writableAddress(), source.rawBuffer());
    return true;
}

struct Row
{
    TypeKind source;
    TypeKind target;
    detail::Rule rule;
};

/// What converts, besides a type to itself and whatever is into or out of a Dynamic.
constexpr Row k_rules[] = {
    {TypeKind::Int, TypeKind::Int, detail::intToInt},         {TypeKind::Int, TypeKind::Float, detail::intToFloat},
    {TypeKind::Float, TypeKind::Int, detail::floatToInt},     {TypeKind::Float, TypeKind::Float, detail::floatToFloat},
    {TypeKind::String, TypeKind::String, stringToString},     {TypeKind::Raw, TypeKind::Raw, rawToRaw},
    {TypeKind::List, TypeKind::List, detail::listToList},     {TypeKind::Map, TypeKind::Map, detail::mapToMap},
    {TypeKind::Tuple, TypeKind::Tuple, detail::tupleToTuple}, {TypeKind::Tuple, TypeKind::Map, detail::tupleToMap},
    {TypeKind::Map, TypeKind::Tuple, detail::mapToTuple},
};

detail::Rule ruleFor(TypeKind source, TypeKind target)
{
    for (const Row& row : k_rules) {
        if (row.source == source && row.target == target)
            return row.rule;
    }
    return nullptr;
}

std::string nameOf(const TypeInterface* type) { return type ? type->name() : "nothing"; }

} // namespace

namespace detail {

bool Conversion::run(const AnyReferenceBase& source, const AnyReference& target)
{
    ++m_runs;
    const bool done = attemptSafely(source, target);
    --m_runs;
    return done;
}

bool Conversion::attemptSafely(const AnyReferenceBase& source, const AnyReference& target)
{
    try {
        const Walk::Step step(m_walk, source);
        return step ? attempt(source, target) : fail([&step] { return step.refusal(); });
    } catch (const std::bad_alloc&) {
        throw;
    } catch (...) {
        return failFor(std::current_exception());
    }
}

bool Conversion::attempt(const AnyReferenceBase& source, const AnyReference& target)
{
    const bool isToDynamic = target.kind() == TypeKind::Dynamic;
    const bool isToOptional = target.kind() == TypeKind::Optional;
    if (source.isEmpty() && !isToDynamic && !isToOptional)
        return fail([] { return "there is no value"; });
    if (target.isEmpty())
        return fail([] { return "there is no target"; });
    if (target.isReadOnly())
        return fail([] { return "the target is for reading only"; });
    const TypeInterface& type = *target.type();
    if (!source.isEmpty() && (source.type() == &type || source.type()->info() == type.info()))
        return type.assign(target.writableAddress(), source.address()) ||
               fail([&type] { return type.name() + " cannot be assigned"; });
    if (isToDynamic) {
        static_cast<const DynamicTypeInterface&>(type).set(target.writableAddress(), AnyReference(source));
        return true;
    }
    if (source.kind() == TypeKind::Dynamic || source.kind() == TypeKind::Optional)
        return run(source.content(), target);
    if (isToOptional)
        return setOptional(source, target);
    if (const Rule rule = ruleFor(source.kind(), type.kind()))
        return rule(*this, source, target);
    return fail([&] {
        return m_runs == 1 && m_parts == 0 ? "" : nameOf(source.type()) + " does not convert to " + type.name();
    });
}

bool Conversion::setOptional(const AnyReferenceBase& source, const AnyReference& target)
{
    const auto& type = static_cast<const OptionalTypeInterface&>(*target.type());
    if (source.isEmpty()) {
        type.reset(target.writableAddress());
        return true;
    }
    const AnyReference old = type.value(target.writableAddress());
    // What a struct has besides its members stays as it is, as without the optional around it.
    const Scratch value = old.kind() == TypeKind::Tuple ? Scratch(old) : Scratch(type.valueType());
    if (!value)
        return fail([&type] { return type.valueType()->name() + " has no default value"; });
    if (!runPart(source, value.reference(), [] { return std::string(); }))
        return false;
    type.setMoved(target.writableAddress(), value.get());
    return true;
}

bool Conversion::failFor(std::exception_ptr cause)
{
    if (!m_failure)
        return false;
    m_failure->cause = cause;
    try {
        std::rethrow_exception(std::move(cause));
    } catch (const std::exception& exception) {
        m_failure->reason = exception.what();
    } catch (...) {
        m_failure->reason = "an exception of an unknown type";
    }
    return false;
}

bool Scratch::moveTo(Conversion& conversion, const AnyReference& target) const
{
    return m_type->assignMoved(target.writableAddress(), m_value) ||
           conversion.fail([this] { return m_type->name() + " cannot be assigned"; });
}

Scratch Scratch::of(const TypeInterface* type, const AnyReferenceBase& value)
{
    if (!value.isEmpty() && value.type()->info() == type->info())
        return Scratch(AnyReference(value));
    Scratch scratch(type);
    if (!scratch)
        throwConversionFailure(value.type(), type, type->name() + " has no default value");
    convert(value, scratch.reference());
    return scratch;
}

std::optional<Scratch> Scratch::tryOf(const TypeInterface* type, const AnyReferenceBase& value)
{
    if (!value.isEmpty() && value.type()->info() == type->info())
        return Scratch(AnyReference(value));
    Scratch scratch(type);
    if (!scratch || !tryConvert(value, scratch.reference()))
        return std::nullopt;
    return scratch;
}

bool Scratch::renew(Conversion& conversion)
{
    if (m_type->kind() != TypeKind::Tuple)
        return true;
    void* const fresh = m_type->initializeStorage();
    if (!fresh)
        return conversion.fail([this] { return m_type->name() + " has no default value"; });
    m_type->destroy(m_value);
    m_value = fresh;
    return true;
}

void convertOrThrow(const AnyReferenceBase& source, const AnyReference& target) { convert(source, target); }

bool convertIfPossible(const AnyReferenceBase& source, const AnyReference& target)
{
    return Conversion(nullptr).run(source, target);
}

} // namespace detail

std::string ConversionFailure::message() const
{
    std::string text = "Cannot convert " + sourceType + " to " + targetType;
    if (!path.empty())
        text += " at " + path;
    if (!reason.empty())
        text += ": " + reason;
    return text;
}

ConversionError::ConversionError(const ConversionFailure& failure)
    : std::runtime_error(failure.message()), m_failure(std::make_shared<const ConversionFailure>(failure))
{
}

ConversionError::~ConversionError() = default;

bool tryConvert(const AnyReferenceBase& source, const AnyReference& target, ConversionFailure* failure)
{
    if (failure)
        *failure = ConversionFailure();
    if (Conversion(failure).run(source, target))
        return true;
    if (failure) {
        failure->sourceType = nameOf(source.type());
        failure->targetType = nameOf(target.type());
    }
    return false;
}

void convert(const AnyReferenceBase& source, const AnyReference& target)
{
    ConversionFailure failure;
    if (tryConvert(source, target, &failure))
        return;
    if (failure.cause)
        std::rethrow_exception(failure.cause);
    throw ConversionError(failure);
}

void throwConversionFailure(const TypeInterface* source, const TypeInterface* target, const std::string& reason)
{
    ConversionFailure failure;
    failure.sourceType = nameOf(source);
    failure.targetType = nameOf(target);
    failure.reason = reason;
    throw ConversionError(failure);
}

} // namespace zu
