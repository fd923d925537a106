#pragma once

#include <zupackage/export.hpp>

#include <iosfwd>
#include <memory>
#include <string>

namespace VX {
class VXValue;
}

namespace zu {

struct LanguageInfoPrivate;

/// One speech language that a package installs: its data and the speech engine that they are made for.
///
/// Texts are UTF-8; language codes are keys exactly as given, without normalisation or fallback. Setters keep whatever
/// they are given.
///
/// A language owns its content; a copy is deep and independent. There are no move operations: a moved-from language
/// would be left without content. Not synchronised: one object is used by one thread at a time, or read by several.
class ZUPACKAGE_EXPORT LanguageInfo
{
public:
    /// A language with empty texts and no names.
    LanguageInfo();
    /// A deep copy, which shares nothing with `other`.
    LanguageInfo(const LanguageInfo& other);
    /// Decodes what toVXValue() encodes, by position. The shape is not looked at first: a value that is no Array, or
    /// has less than five pairs, throws VX::VXError; further pairs are ignored. A Binary in `value` that is read as a
    /// text becomes a String, see VX::VXValue.
    LanguageInfo(const VX::VXValue& value); // NOLINT(google-explicit-constructor): callers are used to it
    ~LanguageInfo();

    /// Copies the content of `other` into this object.
    /// @return a further copy, by value: callers built against this signature rely on it.
    LanguageInfo operator=(const LanguageInfo& other);

    /// Path of the language's data inside the package.
    /// @{
    std::string path() const;
    void setPath(const std::string& path);
    /// @}

    /// Name of the speech engine that the data are made for.
    /// @{
    std::string engineName() const;
    void setEngineName(const std::string& engineName);
    /// @}

    /// Version of that engine.
    /// @{
    std::string engineVersion() const;
    void setEngineVersion(const std::string& engineVersion);
    /// @}

    /// The language itself, as an ISO 639 code.
    /// @{
    std::string locale() const;
    void setLocale(const std::string& locale);
    /// @}

    /// The display name of this language in exactly `lang`; empty when there is none. The map of all names is not
    /// offered; the dump shows it.
    std::string name(const std::string& lang) const;
    /// Sets or replaces the display name in `lang`.
    void setName(const std::string& name, const std::string& lang);

    /// Encodes the language for the older remote-call layer: five pairs of a key and a value, in a fixed order. `value`
    /// must be Invalid or an Array, else VX::VXError is thrown; it is replaced as a whole.
    void toVXValue(VX::VXValue& value) const;

private:
    friend struct PrivateRecord;
    const std::unique_ptr<LanguageInfoPrivate> m_p;
};

/// Prints the language for people, an item a line, flushed line by line.
ZUPACKAGE_EXPORT std::ostream& operator<<(std::ostream& out, const LanguageInfo& language);

} // namespace zu
