#include "package/package_element.hpp"

#include "edits.hpp"

#include <QtCore/QXmlStreamReader>

#include <algorithm>
#include <stdexcept>

namespace zupackage::authoring {

namespace {

using zu::authoring::AttributeEntry;
using zu::authoring::Occurrence;
using zu::authoring::ValueKind;

QLatin1String asciiOf(std::string_view name) { return QLatin1String(name.data(), static_cast<int>(name.size())); }

PackageElement elementFrom(QXmlStreamReader& reader, const ElementEntry& entry)
{
    PackageElement element(entry);
    const QXmlStreamAttributes attributes = reader.attributes();
    for (std::size_t i = 0; i < entry.attributes.size(); ++i)
        element.attributes[i] = attributes.value(asciiOf(entry.attributes[i].name)).toUtf8().toStdString();
    while (!reader.atEnd() && reader.readNext() != QXmlStreamReader::EndElement) {
        if (reader.isCharacters() && entry.text != ValueKind::None)
            element.text += reader.text().toUtf8().toStdString();
        if (!reader.isStartElement())
            continue;
        const ElementEntry* const childEntry = entry.child(reader.name().toUtf8().toStdString());
        if (!childEntry) {
            // A permission that is none.
            reader.skipCurrentElement();
            continue;
        }
        PackageElement child = elementFrom(reader, *childEntry);
        if (!isEmptyPart(child))
            element.children.push_back(std::move(child));
    }
    return element;
}

void appendMarkup(const PackageElement& element, std::size_t level, std::string& markup)
{
    const std::string indentation(2 * level, ' ');
    const std::string name(element.entry->name);
    markup += indentation + "<" + name;
    for (std::size_t i = 0; i < element.attributes.size(); ++i) {
        if (!element.attributes[i].empty())
            markup += " " + std::string(element.entry->attributes[i].name) + "=\"" +
                      escapedValue(element.attributes[i], '"') + "\"";
    }
    if (element.text.empty() && element.children.empty()) {
        markup += "/>";
        return;
    }
    markup += ">" + readableText(element.text, true);
    for (const PackageElement& child : element.children) {
        markup += "\n";
        appendMarkup(child, level + 1, markup);
    }
    markup += (element.children.empty() ? "" : "\n" + indentation) + "</" + name + ">";
}

} // namespace

bool operator==(const PackageElement& left, const PackageElement& right)
{
    return left.entry == right.entry && left.attributes == right.attributes && left.text == right.text &&
           left.children == right.children;
}

PackageElement elementOf(const zu::PackageInfo& package)
{
    // A copy, for the writer is not const.
    QByteArray manifest = QByteArray::fromStdString(zu::PackageInfo(package).saveToManifestContent());
    // The writer leaves carriage returns as they are in CDATA sections alone, and there the package library's reader
    // keeps them, while others make line feeds of them.
    manifest.replace('\r', "]]>&#13;<![CDATA[");
    QXmlStreamReader reader(manifest);
    reader.readNextStartElement();
    return elementFrom(reader, zu::authoring::Vocabulary::manifest().root());
}

zu::PackageInfo packageOf(const PackageElement& root)
{
    zu::PackageInfo package;
    zu::ManifestSyntaxError error;
    if (!zu::readManifest(markupOf(root), package, &error))
        throw std::runtime_error("the package has no manifest that can be read: " + error.message);
    return package;
}

bool isPart(const ElementEntry& entry)
{
    const bool isFlag = entry.text == ValueKind::None && entry.attributes.empty() && entry.children.empty();
    return entry.occurrence != Occurrence::Repeated && !isFlag;
}

bool isEmptyPart(const PackageElement& element)
{
    return isPart(*element.entry) && element.text.empty() && element.children.empty() &&
           std::all_of(element.attributes.begin(), element.attributes.end(),
                       [](const std::string& value) { return value.empty(); });
}

const std::string& identityOf(const PackageElement& element)
{
    static const std::string& none = *new std::string;
    if (element.entry->identity == k_ownText)
        return element.text;
    const AttributeEntry* const attribute = element.entry->attribute(element.entry->identity);
    return attribute ? element.attributes[static_cast<std::size_t>(attribute - element.entry->attributes.data())]
                     : none;
}

std::string markupOf(const PackageElement& element)
{
    std::string markup;
    appendMarkup(element, 0, markup);
    return markup;
}

bool isComposite(const PackageElement& element)
{
    if (element.entry->text != ValueKind::None)
        return false;
    const auto values = std::count_if(element.attributes.begin(), element.attributes.end(),
                                      [](const std::string& value) { return !value.empty(); });
    return !element.children.empty() || values > (identityOf(element).empty() ? 0 : 1);
}

std::string describe(const PackageElement& element) { return isComposite(element) ? markupOf(element) : element.text; }

} // namespace zupackage::authoring
