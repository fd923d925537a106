// Any bytes, read as a source document: as QXmlStreamReader has them, or refused; every range in its place.
#include "support/stream_reader.hpp"
#include "target.hpp"

#include <zupackage/authoring/text_edit.hpp>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string bytes(fuzz::textOf(data, size));
    const std::string difference = zu::test::differenceFromStreamReader(bytes);
    fuzz::require(difference.empty(), difference);

    const auto document = zu::authoring::SourceDocument::parse(bytes);
    for (std::size_t i = 0; i < document.nodeCount(); ++i) {
        const zu::authoring::SourceNode node = document.node(i);
        const bool hasPath = node.kind() != zu::authoring::NodeKind::XmlDeclaration &&
                             node.kind() != zu::authoring::NodeKind::DocumentType;
        fuzz::require(!hasPath || document.find(node.path()) == node, "a path leads elsewhere: " + node.path());
    }
    const zu::authoring::ByteRange content = document.document().contentRange();
    fuzz::require(applyEdits(document, {{{content.begin, content.begin}, ""}, {{content.end, content.end}, ""}}) ==
                      bytes,
                  "an edit of nothing changes something");
    return 0;
}
