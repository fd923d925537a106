#pragma once

#include <zupackage/export.hpp>

#include <QtCore/qglobal.h>

#include <iosfwd>
#include <map>
#include <memory>
#include <string>

QT_FORWARD_DECLARE_CLASS(QDomDocument)
QT_FORWARD_DECLARE_CLASS(QDomElement)
QT_FORWARD_DECLARE_CLASS(QDomNode)

namespace VX {
class VXValue;
}

namespace zu {

struct DialogInfoPrivate;

/// One dialog topic of a package, with a topic file for each language.
///
/// Texts are UTF-8; language codes are keys exactly as given, without normalisation or fallback. Setters keep whatever
/// they are given.
///
/// A dialog owns its content; a copy is deep and independent. There are no move operations: a moved-from dialog would
/// be left without content. Not synchronised: one object is used by one thread at a time, or read by several.
class ZUPACKAGE_EXPORT DialogInfo
{
public:
    /// A dialog with empty texts and no topic files.
    DialogInfo();
    /// A deep copy, which shares nothing with `other`.
    DialogInfo(const DialogInfo& other);
    /// Decodes what toVXValue() encodes, by position. A value that is no Array of exactly three elements gives an empty
    /// dialog; what is wrong inside one throws VX::VXError. A Binary in `value` that is read as a text becomes a
    /// String, see VX::VXValue.
    DialogInfo(const VX::VXValue& value); // NOLINT(google-explicit-constructor): callers are used to it
    ~DialogInfo();

    /// Copies the content of `other` into this object. References to its fields, maps and lists stay valid, those to
    /// their elements do not.
    /// @return a further copy, by value: callers built against this signature rely on it.
    DialogInfo operator=(const DialogInfo& other);

    /// Name of the topic.
    /// @{
    const std::string& topicName() const;
    void setTopicName(const std::string& topicName);
    /// @}

    /// Version of the topic files' type.
    /// @{
    const std::string& typeVersion() const;
    void setTypeVersion(const std::string& typeVersion);
    /// @}

    /// Paths of the topic files inside the package, by language.
    const std::map<std::string, std::string>& topics() const;

    /// The path for exactly `lang`; empty when there is none.
    std::string topic(const std::string& lang) const;

    /// Sets or replaces the path for `lang`. Key first, unlike every other setter here: existing callers pass it so.
    void setTopic(const std::string& lang, const std::string& path);

    /// @return false when there was no path for `lang`.
    bool removeTopic(const std::string& lang);

    /// Reads a "dialogContent" element: overwrites the topic name and the type version (with empty texts when their
    /// attributes are missing) and adds the topic files to those present, replacing equal languages.
    /// @return true, always: whatever the element lacks keeps its default, and unknown children are ignored.
    bool loadFromManifest(QDomElement& element);

    /// Appends a "dialogContent" element to `parent`, a node of `document`. Topic files with an empty language or path
    /// are left out; what XML cannot carry is written as U+FFFD.
    void saveToManifest(QDomDocument& document, QDomNode& parent) const;

    /// Encodes the dialog for the older remote-call layer: three pairs of a key and a value, in a fixed order.
    VX::VXValue toVXValue() const;

private:
    friend struct PrivateRecord;
    const std::unique_ptr<DialogInfoPrivate> m_p;
};

/// Equal when topic name, type version and all topic files are equal, byte by byte.
/// @{
ZUPACKAGE_EXPORT bool operator==(const DialogInfo& left, const DialogInfo& right);
ZUPACKAGE_EXPORT bool operator!=(const DialogInfo& left, const DialogInfo& right);
/// @}

/// Prints the dialog for people, an item a line, flushed line by line.
ZUPACKAGE_EXPORT std::ostream& operator<<(std::ostream& out, const DialogInfo& dialog);

} // namespace zu
