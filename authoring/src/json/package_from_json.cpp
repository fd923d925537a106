#include "characters.hpp"
#include "check/wording.hpp"
#include "json/element_builder.hpp"
#include "limits.hpp"

#include <zupackage/authoring/package_json.hpp>

#include <iterator>
#include <nlohmann/json.hpp>

namespace zupackage::authoring {

namespace {

using zu::authoring::PackageJsonError;
using zu::authoring::Place;

constexpr std::string_view k_betweenTokens = " \t\r\n,:";
constexpr char k_hasZeroByte[] = "is no JSON: there is a zero byte";

std::size_t beginOf(std::string_view text)
{
    return text.substr(0, k_byteOrderMark.size()) == k_byteOrderMark ? k_byteOrderMark.size() : 0;
}

Place placeIn(std::string_view text, std::size_t offset)
{
    Place place;
    for (std::size_t i = beginOf(text); i < offset && i < text.size(); ++i) {
        const char c = text[i];
        if (c == '\n' || (c == '\r' && text.substr(i + 1, 1) != "\n"))
            place = {place.line + 1, 1};
        else if ((static_cast<unsigned char>(c) & 0xC0U) != 0x80U)
            ++place.column;
    }
    return place;
}

/// Goes over a text and tells how far the parser that reads it has come.
class CountingIterator
{
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    CountingIterator(const char* character, std::size_t& count) : m_character(character), m_count(&count) {}
    const char& operator*() const { return *m_character; }
    CountingIterator& operator++()
    {
        ++m_character;
        ++*m_count;
        return *this;
    }
    friend bool operator==(CountingIterator left, CountingIterator right)
    {
        return left.m_character == right.m_character;
    }
    friend bool operator!=(CountingIterator left, CountingIterator right) { return !(left == right); }

private:
    const char* m_character;
    std::size_t* m_count;
};

/// The parser's own words without what it says of the place and quotes from the text.
std::string reasonIn(std::string_view words)
{
    const std::size_t begin = words.find(" - ");
    words.remove_prefix(begin == std::string_view::npos ? 0 : begin + 3);
    return "is no JSON: " + std::string(words.substr(0, words.find("; last read")));
}

/// What nlohmann's parser calls; the names are its own.
class Parsing
{
public:
    using number_integer_t = nlohmann::json::number_integer_t;
    using number_unsigned_t = nlohmann::json::number_unsigned_t;
    using number_float_t = nlohmann::json::number_float_t;
    using string_t = nlohmann::json::string_t;
    using binary_t = nlohmann::json::binary_t;

    explicit Parsing(std::string_view text) : m_text(text), m_end(beginOf(text)) {}

    /// Throws PackageJsonError.
    PackageElement parse()
    {
        const char* const end = m_text.data() + m_text.size();
        try {
            nlohmann::json::sax_parse(CountingIterator(m_text.data(), m_read), CountingIterator(end, m_read), this);
        } catch (const JsonRefusal& refusal) {
            fail(m_begin, refusal.what());
        }
        // The parser takes a zero byte for the end of the text.
        if (const std::size_t zero = m_text.find('\0'); zero != std::string_view::npos)
            fail(zero, k_hasZeroByte);
        return m_builder.root();
    }

    bool null()
    {
        return take([&] { m_builder.null(); });
    }
    bool boolean(bool value)
    {
        return take([&] { m_builder.flag(value); });
    }
    bool number_integer(number_integer_t value) { return number_float(static_cast<double>(value), {}); }
    bool number_unsigned(number_unsigned_t value) { return number_float(static_cast<double>(value), {}); }
    bool number_float(number_float_t value, const string_t&)
    {
        return take([&] { m_builder.number(value); });
    }
    bool string(const string_t& text)
    {
        return take([&] { m_builder.text(text); });
    }
    static bool binary(const binary_t&) { return false; } // JSON has none
    bool start_object(std::size_t)
    {
        return take([&] { m_builder.startObject(); });
    }
    bool key(const string_t& name)
    {
        return take([&] { m_builder.key(name); });
    }
    bool end_object()
    {
        return take([&] { m_builder.end(); });
    }
    bool start_array(std::size_t)
    {
        return take([&] { m_builder.startArray(); });
    }
    bool end_array() { return end_object(); }

    bool parse_error(std::size_t position, const std::string&, const nlohmann::json::exception& error)
    {
        if (dynamic_cast<const nlohmann::json::out_of_range*>(&error))
            fail(m_text.find_first_not_of(k_betweenTokens, m_end), "is a number that is too large");
        const std::size_t offset = position == 0 ? 0 : position - 1;
        fail(offset, offset < m_text.size() && m_text[offset] == '\0' ? k_hasZeroByte : reasonIn(error.what()));
    }

private:
    /// Tells the builder of a token, once it is clear where that begins.
    template <class Tell>
    bool take(Tell tell)
    {
        m_begin = std::min(m_text.find_first_not_of(k_betweenTokens, m_end), m_read);
        m_end = m_read;
        tell();
        return true;
    }

    [[noreturn]] void fail(std::size_t offset, std::string reason) const
    {
        throw PackageJsonError(placeIn(m_text, offset), m_builder.pointer(), std::move(reason));
    }

    std::string_view m_text;
    std::size_t m_read = 0;  ///< how many bytes the parser has
    std::size_t m_begin = 0; ///< of the last token
    std::size_t m_end;       ///< of the last token, or one byte behind
    ElementBuilder m_builder;
};

std::string wordsFor(Place place, const std::string& pointer, const std::string& reason)
{
    std::string words = "line " + std::to_string(place.line) + ", column " + std::to_string(place.column);
    if (!pointer.empty())
        words += ", at " + check::inQuotes(pointer);
    return words + ": " + reason;
}

} // namespace

} // namespace zupackage::authoring

namespace zu {

namespace authoring {

PackageJsonError::PackageJsonError(Place place, std::string pointer, std::string reason)
    : std::runtime_error(zupackage::authoring::wordsFor(place, pointer, reason)), m_place(place),
      m_texts(std::make_shared<Texts>(Texts{std::move(pointer), std::move(reason)}))
{
}

PackageJsonError::~PackageJsonError() = default;

} // namespace authoring

PackageInfo packageFromJson(std::string_view json)
{
    using namespace zupackage::authoring;
    if (json.size() > limits::k_documentMiB * limits::k_bytesPerMiB)
        throw authoring::PackageJsonError({}, {}, "is larger than " + std::to_string(limits::k_documentMiB) + " MiB");
    const PackageElement root = Parsing(json).parse();
    try {
        return packageOf(root);
    } catch (const std::runtime_error& error) {
        throw authoring::PackageJsonError({}, {}, error.what());
    }
}

} // namespace zu
