#include "xml/document.hpp"

#include "xml/dom_tree.hpp"
#include "xml/nodes.hpp"
#include "xml/sources.hpp"
#include "xml/tree_builder.hpp"

#include <QtCore/QBuffer>
#include <QtXml/QDomDocument>

#include <algorithm>

QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED
#include <QtXml/QXmlSimpleReader>

namespace zupackage::xml {

namespace {

constexpr qint64 k_maxBytes = limits::k_documentMiB * limits::k_bytesPerMiB;

/// Runs the parser over a document. It is the one within QDomDocument::setContent.
/// @param reportsEntities whether the guard sees each expansion of an entity, before it is made.
/// @return whether it came to the document's end.
bool run(Guard& guard, const QXmlInputSource& source, bool reportsEntities)
{
    QXmlSimpleReader reader;
    // Without namespaces, so that declarations of them are seen as attributes and cost nothing.
    reader.setFeature(QStringLiteral("http://xml.org/sax/features/namespaces"), false);
    reader.setFeature(QStringLiteral("http://xml.org/sax/features/namespace-prefixes"), true);
    reader.setFeature(QStringLiteral("http://qt-project.org/xml/features/report-start-end-entity"), reportsEntities);
    reader.setContentHandler(&guard);
    reader.setLexicalHandler(&guard);
    reader.setDeclHandler(&guard);
    reader.setDTDHandler(&guard);
    reader.setErrorHandler(&guard);
    return reader.parse(source);
}

/// `setContent(document, &message, &line, &column)` parses into the document.
template <class SetContent>
ParseResult parsedByQt(SetContent setContent)
{
    QDomDocument document;
    QString message;
    int line = 0;
    int column = 0;
    if (!setContent(document, &message, &line, &column))
        return ParseFailure{line, column, toUtf8(message)};
    return treeOf(document.documentElement());
}

/// @param Source is made from a guard and the content.
/// @param setContent is for parsedByQt(), when the content is out of the ordinary.
template <class Source, class Content, class SetContent>
ParseResult parsed(const Content& content, Namespaces namespaces, SetContent setContent)
{
    const auto size = static_cast<qint64>(content.size());
    if (QDomImplementation::invalidDataPolicy() == QDomImplementation::AcceptInvalidChars) {
        TreeBuilder builder(namespaces, size);
        if (run(builder, Source(builder, content), false))
            return std::move(builder.tree());
        if (!builder.isOutOfTheOrdinary())
            return builder.failure().value_or(ParseFailure{});
    }
    Guard guard(namespaces == Namespaces::Processed ? Model::DomWithNamespaces : Model::Dom, size);
    if (!run(guard, Source(guard, content), true) && guard.isExceeded())
        return *guard.failure();
    return parsedByQt(setContent);
}

ParseFailure tooLarge()
{
    return {1, 1, "the document is larger than " + std::to_string(limits::k_documentMiB) + " MiB"};
}

/// In pieces: a pipe gives no more at once than it has.
QByteArray readUpTo(qint64 most, QIODevice& device)
{
    constexpr qint64 k_piece = 64 * 1024;
    QByteArray bytes;
    while (bytes.size() < most) {
        const QByteArray piece = device.read(std::min(k_piece, most - bytes.size()));
        if (piece.isEmpty())
            break;
        bytes += piece;
    }
    return bytes;
}

} // namespace

ParseResult parse(const std::string& content)
{
    if (content.size() > static_cast<std::size_t>(k_maxBytes))
        return tooLarge();
    return parsed<TextSource>(content, Namespaces::Processed,
                              [&content](QDomDocument& document, QString* message, int* line, int* column) {
                                  return document.setContent(fromUtf8(content), true, message, line, column);
                              });
}

ParseResult parse(QIODevice& device)
{
    device.setTextModeEnabled(false);
    QByteArray bytes = readUpTo(k_maxBytes + 1, device);
    if (bytes.size() > k_maxBytes)
        return tooLarge();
    return parsed<BytesSource>(bytes, Namespaces::Ignored,
                               [&bytes](QDomDocument& document, QString* message, int* line, int* column) {
                                   QBuffer buffer(&bytes);
                                   buffer.open(QIODevice::ReadOnly);
                                   return document.setContent(&buffer, message, line, column);
                               });
}

} // namespace zupackage::xml

QT_WARNING_POP
