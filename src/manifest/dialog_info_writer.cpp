#include "manifest/elements_writer.hpp"
#include "manifest/manifest_names.hpp"
#include "records/dialog_info_p.hpp"
#include "xml/characters.hpp"
#include "xml/nodes.hpp"

#include <QtXml/QDomDocument>

#include <optional>

namespace zupackage {

namespace {

/// Appends elements to a node of a caller's document, with the operations of the writer of text.
class DomWriter
{
public:
    DomWriter(QDomDocument& document, QDomNode& parent) : m_document(document), m_parent(parent) {}

    void startElement(std::string_view name)
    {
        const QDomElement element = m_document.createElement(xml::fromUtf8(name));
        // The parent itself and no copy: an empty document has nothing to share before its first element is made.
        m_element = (m_element ? *m_element : m_parent).appendChild(element);
    }

    void attribute(std::string_view name, std::string_view value)
    {
        m_element->toElement().setAttribute(xml::fromUtf8(name), xml::withoutForbiddenCharacters(xml::fromUtf8(value)));
    }

    void endElement() { m_element = m_element->parentNode(); }

private:
    QDomDocument& m_document;
    QDomNode& m_parent;
    std::optional<QDomNode> m_element; // the innermost that is not ended yet
};

template <class Writer>
void write(Writer& out, const zu::DialogInfoPrivate& dialog)
{
    using namespace names;
    out.startElement(k_dialogContent);
    out.attribute(k_topicName, dialog.topicName);
    out.attribute(k_typeVersion, dialog.typeVersion);
    for (const auto& [lang, path] : dialog.topics) {
        if (lang.empty() || path.empty())
            continue;
        out.startElement(k_topic);
        out.attribute(k_language, lang);
        out.attribute(k_path, path);
        out.endElement();
    }
    out.endElement();
}

} // namespace

void writeDialog(xml::TextWriter& out, const zu::DialogInfoPrivate& dialog) { write(out, dialog); }

} // namespace zupackage

namespace zu {

void DialogInfo::saveToManifest(QDomDocument& document, QDomNode& parent) const
{
    zupackage::DomWriter out(document, parent);
    zupackage::write(out, *m_p);
}

} // namespace zu
