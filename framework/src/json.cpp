#include "conversion_parts.hpp"

#include <zu/dispatch.hpp>
#include <zu/json.hpp>
#include <zu/type/map.hpp>
#include <zu/walk.hpp>

#include <array>
#include <charconv>
#include <cmath>
#include <nlohmann/json.hpp>

namespace zu {

namespace {

using nlohmann::ordered_json;

/// Up to here on either side of zero every integer is a double of its own.
constexpr std::int64_t k_largestExact = (std::int64_t(1) << 53) - 1;

/// A part has no JSON form; the path to it grows on the way out.
struct NoJson : std::exception
{
    explicit NoJson(std::string text) : reason(std::move(text)) {}

    std::string reason;
    std::string path;
};

std::string base64Of(std::string_view bytes)
{
    constexpr char digits[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string text;
    text.reserve((bytes.size() + 2) / 3 * 4);
    for (std::size_t at = 0; at < bytes.size(); at += 3) {
        const std::string_view group = bytes.substr(at, 3);
        unsigned bits = 0;
        for (std::size_t i = 0; i < 3; ++i)
            bits = bits << 8 | (i < group.size() ? static_cast<unsigned char>(group[i]) : 0U);
        for (std::size_t i = 0; i < 4; ++i)
            text += i <= group.size() ? digits[bits >> (18 - 6 * i) & 0x3f] : '=';
    }
    return text;
}

/// The double that prints with the digits that tell a float from all other floats.
double shortest(float number)
{
    std::array<char, 32> digits{};
    double result = 0;
    const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), number);
    std::from_chars(digits.data(), written.ptr, result);
    return result;
}

bool isUtf8(std::string_view text)
{
    try {
        static_cast<void>(ordered_json(text).dump());
        return true;
    } catch (const ordered_json::type_error&) {
        return false;
    }
}

/// Adds a member without looking for an equal one, which would take time in proportion to those that are there.
void add(ordered_json& object, std::string key, ordered_json value)
{
    object.get_ref<ordered_json::object_t&>().emplace_back(std::move(key), std::move(value));
}

class JsonMaker final : public TypeVisitor
{
public:
    /// Throws NoJson.
    ordered_json make(const AnyReferenceBase& value)
    {
        const Walk::Step step(m_walk, value);
        if (!step)
            throw NoJson(step.refusal());
        if (value.isEmpty())
            return nullptr;
        const TypeKind kind = value.kind();
        // What dispatching only warns of.
        if (kind == TypeKind::Function || kind == TypeKind::Signal || kind == TypeKind::Property ||
            kindName(kind).empty())
            refuse(value);
        m_value = &value;
        dispatch(value, *this);
        return std::move(m_json);
    }

    void visitUnknown(const AnyReference& value) override { refuse(value); }
    void visitObject(const AnyReference& object) override { refuse(object); }
    void visitIterator(const AnyReference& iterator) override { refuse(iterator); }
    void visitVoid() override { m_json = nullptr; }

    void visitInt(std::int64_t number, bool isSigned, unsigned byteSize) override
    {
        if (byteSize == 0)
            m_json = number != 0;
        else if (const std::string_view name = m_value->enumName(); !name.empty())
            m_json = name;
        else if (-k_largestExact <= number && number <= k_largestExact && (isSigned || number >= 0))
            m_json = number;
        else
            m_json = isSigned ? std::to_string(number) : std::to_string(static_cast<std::uint64_t>(number));
    }

    void visitFloat(double number, unsigned byteSize) override
    {
        if (std::isnan(number))
            m_json = "NaN";
        else if (std::isinf(number))
            m_json = number < 0 ? "-Infinity" : "Infinity";
        else
            m_json = byteSize == sizeof(float) ? shortest(static_cast<float>(number)) : number;
    }

    void visitString(std::string_view text) override { m_json = text; }
    void visitRaw(std::string_view bytes) override { m_json = base64Of(bytes); }
    void visitList(const AnyReference& list) override { makeElements(list); }
    void visitVarArgs(const AnyReference& arguments) override { makeElements(arguments); }

    void visitMap(const AnyReference& map) override
    {
        const bool isObject = detail::as<MapTypeInterface>(map).keyType()->kind() == TypeKind::String;
        ordered_json entries = isObject ? ordered_json::object() : ordered_json::array();
        std::size_t index = 0;
        for (const AnyReference entry : map) {
            const AnyReference key = entry._element(0);
            const auto step = [&key, at = index++] { return detail::stepTo(key, at); };
            const auto stepToKey = [&step] { return step() + "(key)"; };
            ordered_json keyJson = makePart(key, stepToKey);
            if (isObject && !isUtf8(key.text()))
                fail("the key is no UTF-8", stepToKey());
            ordered_json value = makePart(entry._element(1), step);
            if (isObject)
                add(entries, std::move(keyJson.get_ref<std::string&>()), std::move(value));
            else
                entries.push_back(ordered_json::array({std::move(keyJson), std::move(value)}));
        }
        m_json = std::move(entries);
    }

    void visitTuple(const std::string& className, const std::vector<AnyReference>& values,
                    const std::vector<std::string>& names) override
    {
        const bool isObject = !className.empty() || !names.empty();
        if (isObject && names.size() != values.size())
            fail(className + " has not as many names as members");
        ordered_json members = isObject ? ordered_json::object() : ordered_json::array();
        for (std::size_t i = 0; i != values.size(); ++i) {
            ordered_json value = makePart(values[i], [&] { return isObject ? '.' + names[i] : detail::stepTo(i); });
            if (isObject)
                add(members, names[i], std::move(value));
            else
                members.push_back(std::move(value));
        }
        m_json = std::move(members);
    }

    void visitDynamic(const AnyReference& dynamic) override { m_json = make(dynamic.content()); }
    void visitOptional(const AnyReference& optional) override { m_json = make(optional.content()); }
    void visitPointer(PointerKind, const AnyReference& pointee) override { m_json = make(pointee); }

private:
    [[noreturn]] static void fail(std::string reason, std::string path = {})
    {
        NoJson failure(std::move(reason));
        failure.path = std::move(path);
        throw failure;
    }

    [[noreturn]] static void refuse(const AnyReferenceBase& value) { fail(value.type()->name() + " has no JSON form"); }

    template <class Step>
    ordered_json makePart(const AnyReferenceBase& part, Step&& step)
    {
        try {
            return make(part);
        } catch (NoJson& failure) {
            failure.path.insert(0, std::forward<Step>(step)());
            throw;
        }
    }

    void makeElements(const AnyReference& list)
    {
        ordered_json elements = ordered_json::array();
        for (const AnyReference element : list)
            elements.push_back(makePart(element, [at = elements.size()] { return detail::stepTo(at); }));
        m_json = std::move(elements);
    }

    Walk m_walk;
    const AnyReferenceBase* m_value = nullptr; ///< the one that is dispatched
    ordered_json m_json;                       ///< what the last one dispatched became
};

} // namespace

std::string toJson(const AnyReferenceBase& value)
{
    try {
        return JsonMaker().make(value).dump(-1, ' ', false, ordered_json::error_handler_t::replace);
    } catch (const NoJson& failure) {
        ConversionFailure told;
        told.sourceType = value.type()->name();
        told.targetType = "JSON";
        told.path = failure.path;
        told.reason = failure.reason;
        throw ConversionError(told);
    }
}

} // namespace zu
