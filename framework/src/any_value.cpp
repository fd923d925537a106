#include <zu/any_value.hpp>
#include <zu/type/string.hpp>

#include <cstring>
#include <stdexcept>
#include <utility>
#include <vector>

namespace zu {

namespace {

/// Deeper copies are refused rather than left to overflow the stack: a level takes some hundred bytes of it.
constexpr int k_maxCopyDepth = 1'000;
thread_local int t_copyDepth = 0;

class CopyLevel
{
public:
    CopyLevel()
    {
        if (t_copyDepth == k_maxCopyDepth)
            throw std::length_error("a value nested deeper than " + std::to_string(k_maxCopyDepth) +
                                    " levels is not copied");
        ++t_copyDepth;
    }
    ~CopyLevel() { --t_copyDepth; }
    CopyLevel(const CopyLevel&) = delete;
    CopyLevel& operator=(const CopyLevel&) = delete;
};

using Doomed = std::vector<std::pair<const TypeInterface*, void*>>;

/// Values nested deeper than this are not destroyed within the destruction of what holds them but after it.
constexpr int k_maxDestroyDepth = 64;
thread_local int t_destroyDepth = 0;
thread_local Doomed* t_doomed = nullptr; ///< that of the outermost destruction on this thread

/// @return false when the value must be destroyed at once.
bool postpone(const TypeInterface* type, void* value) noexcept
{
    if (t_destroyDepth < k_maxDestroyDepth)
        return false;
    try {
        t_doomed->emplace_back(type, value);
        return true;
    } catch (const std::bad_alloc&) {
        return false;
    }
}

void destroyNested(const TypeInterface* type, void* value) noexcept
{
    ++t_destroyDepth;
    type->destroy(value);
    --t_destroyDepth;
}

bool isViewOfText(const TypeInterface& type)
{
    return type.kind() == TypeKind::String && static_cast<const StringTypeInterface&>(type).isView();
}

} // namespace

AnyValue::AnyValue(const TypeInterface* type)
{
    if (!type)
        return;
    void* value = type->initializeStorage();
    if (!value && type->kind() != TypeKind::Void)
        throw std::runtime_error(type->name() + " has no default value");
    if (type->wordSize() == 0) {
        placeAt(type, value);
        return;
    }
    std::memcpy(m_word, value, type->wordSize());
    type->destroy(value);
    placeAt(type, m_word);
}

AnyValue::AnyValue(const AnyReferenceBase& source) { copyFrom(source); }

AnyReference AnyValue::writable() const noexcept { return AnyReference(type(), m_address); }

void AnyValue::copyFrom(const AnyReferenceBase& source)
{
    if (!source.isEmpty())
        hold(source.type(), source.address());
}

void AnyValue::hold(const TypeInterface* type, const void* source)
{
    if (isViewOfText(*type)) {
        placeAt(typeOf<std::string>(), new std::string(static_cast<const StringTypeInterface*>(type)->get(source)));
    } else if (type->wordSize() != 0) {
        std::memcpy(m_word, source, type->wordSize());
        placeAt(type, m_word);
    } else {
        const CopyLevel level;
        placeAt(type, type->clone(source));
    }
}

void AnyValue::holdMoved(const TypeInterface* type, void* source)
{
    if (type->wordSize() != 0 || isViewOfText(*type))
        hold(type, source);
    else
        placeAt(type, type->take(source));
}

void AnyValue::destroyHeld() noexcept
{
    if (postpone(type(), m_address))
        return;
    if (t_destroyDepth > 0) {
        destroyNested(type(), m_address);
        return;
    }
    Doomed doomed;
    t_doomed = &doomed;
    destroyNested(type(), m_address);
    while (!doomed.empty()) {
        const auto [type, value] = doomed.back();
        doomed.pop_back();
        destroyNested(type, value);
    }
    t_doomed = nullptr;
}

} // namespace zu
