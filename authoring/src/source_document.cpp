#include "characters.hpp"
#include "decoding.hpp"
#include "limits.hpp"
#include "scanner.hpp"

#include <zupackage/authoring/source_document.hpp>

#include <algorithm>

namespace zu::authoring {

namespace limits = zupackage::authoring::limits;

namespace {

void refuseSize(SourceTree& tree)
{
    zupackage::authoring::NodeRecord document;
    document.kind = NodeKind::Document;
    tree.nodes.push_back(document);
    tree.errors.push_back({SyntaxErrorKind::Limit,
                           "the document is larger than " + std::to_string(limits::k_documentMiB) + " MiB",
                           {0, tree.bytes.size()},
                           {}});
}

void read(SourceTree& tree)
{
    tree.encoding = zupackage::authoring::detectEncoding(tree.bytes);
    zupackage::authoring::DecodedText text = zupackage::authoring::decoded(tree.bytes, tree.encoding);
    tree.isConverted = text.isConverted;
    tree.converted = std::move(text.utf8);
    tree.map = std::move(text.map);
    const bool hasMark =
        tree.utf8().substr(0, zupackage::authoring::k_byteOrderMarkSize) == zupackage::authoring::k_byteOrderMark;
    tree.places =
        zupackage::authoring::PlaceIndex(tree.utf8(), hasMark ? zupackage::authoring::k_byteOrderMarkSize : 0);
    zupackage::authoring::Scanner(tree, text.invalid).run();
}

} // namespace

std::string_view charactersOf(LineEnd lineEnd)
{
    switch (lineEnd) {
    case LineEnd::LineFeed:
        return "\n";
    case LineEnd::CarriageReturn:
        return "\r";
    case LineEnd::CarriageReturnLineFeed:
        return "\r\n";
    }
    return "\n";
}

SourceDocument::SourceDocument() : SourceDocument(parse({})) {}

SourceDocument::SourceDocument(std::shared_ptr<const SourceTree> tree) : m_tree(std::move(tree)) {}

SourceDocument SourceDocument::parse(std::string bytes)
{
    const auto tree = std::make_shared<SourceTree>();
    tree->bytes = std::move(bytes);
    if (tree->bytes.size() > limits::k_documentMiB * limits::k_bytesPerMiB)
        refuseSize(*tree);
    else
        read(*tree);
    return SourceDocument(tree);
}

const std::string& SourceDocument::text() const { return m_tree->bytes; }
const std::vector<SyntaxError>& SourceDocument::errors() const { return m_tree->errors; }
bool SourceDocument::isComplete() const { return m_tree->isComplete; }

SourceNode SourceDocument::document() const { return node(0); }
std::size_t SourceDocument::nodeCount() const { return m_tree->nodes.size(); }
SourceNode SourceDocument::node(std::size_t index) const { return {m_tree.get(), static_cast<std::uint32_t>(index)}; }

SourceNode SourceDocument::root() const
{
    for (const SourceNode node : document().children())
        if (node.isElement())
            return node;
    return {};
}

Place SourceDocument::place(std::size_t offset) const
{
    return m_tree->places.place(m_tree->toText(std::min(offset, m_tree->bytes.size())), m_tree->utf8());
}

std::string_view SourceDocument::line(std::size_t offset) const
{
    const std::string_view text = m_tree->utf8();
    std::size_t at = std::min(m_tree->toText(std::min(offset, m_tree->bytes.size())), text.size());
    // Between the two, or on the second, of a line end is still the line before.
    if (at > 0 && at < text.size() && text[at] == '\n' && text[at - 1] == '\r')
        --at;
    const std::size_t before = at == 0 ? std::string_view::npos : text.find_last_of("\r\n", at - 1);
    const std::size_t begin = before == std::string_view::npos ? 0 : before + 1;
    const std::string_view line = text.substr(begin, std::min(text.find_first_of("\r\n", at), text.size()) - begin);
    const bool hasMark = begin == 0 && line.substr(0, zupackage::authoring::k_byteOrderMarkSize) ==
                                           zupackage::authoring::k_byteOrderMark;
    return hasMark ? line.substr(zupackage::authoring::k_byteOrderMarkSize) : line;
}

std::string_view SourceDocument::source(ByteRange range) const
{
    const std::size_t size = m_tree->bytes.size();
    const std::size_t begin = m_tree->toText(std::min(range.begin, size));
    const std::size_t end = m_tree->toText(std::min(range.end, size));
    return m_tree->utf8().substr(begin, std::max(begin, end) - begin);
}

const std::string& SourceDocument::encoding() const { return m_tree->encoding.name; }
bool SourceDocument::hasByteOrderMark() const { return m_tree->encoding.markSize > 0; }
LineEnd SourceDocument::lineEnd() const { return m_tree->places.mostFrequentLineEnd(); }

} // namespace zu::authoring
