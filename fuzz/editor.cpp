// Three texts with NULs between them, a manifest, another one, and a path: the first is edited to read as the second,
// and what the path leads to is set, added and removed. Made is what was asked for, or nothing.
#include "support/carried_packages.hpp"
#include "target.hpp"

#include <zupackage/authoring/manifest_editor.hpp>
#include <zupackage/authoring/path_edit.hpp>
#include <zupackage/package_info.hpp>

#include <array>

namespace {

using namespace zu::authoring;
using fuzz::require;

/// Whether readers of manifests refuse what is well-formed, as they do beyond their limits.
bool isRefusedByReaders(const SourceDocument& document)
{
    zu::PackageInfo package;
    return !zu::readManifest(document.text(), package);
}

/// Whether there may be something that no edit reaches: what entities of a document type stand for, and characters that
/// the encoding has not.
bool mayBeBeyondEditing(const SourceDocument& document)
{
    const std::string_view encoding = document.encoding();
    bool hasDocumentType = false;
    for (std::size_t i = 0; i < document.nodeCount(); ++i)
        hasDocumentType = hasDocumentType || document.node(i).kind() == NodeKind::DocumentType;
    return hasDocumentType || encoding.substr(0, 3) != "UTF";
}

void update(const SourceDocument& document, const std::string& other)
{
    if (isRefusedByReaders(document))
        return;
    ManifestEditor editor(document);
    editor.update(editor.package());
    require(editor.document().text() == document.text(), "an update of nothing changes something");
    zu::PackageInfo target;
    if (!zu::readManifest(other, target))
        return;
    try {
        editor.update(target);
    } catch (const ManifestEditError& error) {
        require(mayBeBeyondEditing(document), error.what());
        require(editor.document().text() == document.text(), "an update that fails changes something");
        return;
    }
    require(editor.document().isWellFormed(), "an update leaves something ill-formed: " + editor.document().text());
    require(zu::test::areCarriedAlike(editor.package(), target),
            "an update reads otherwise: " + editor.document().text());
}

void edit(const SourceDocument& document, const ManifestPath& path)
{
    const std::array<PathEdit, 3> edits = {SetText{path, "<&>"}, AddEntry{path, {}}, Remove{path}};
    for (const PathEdit& edit : edits)
        for (const VocabularyGuard guard : {VocabularyGuard::Enforced, VocabularyGuard::Waived}) {
            try {
                const SourceDocument result = edited(document, {edit}, guard);
                require(result.isWellFormed(), "an edit leaves something ill-formed: " + result.text());
                if (!std::holds_alternative<SetText>(edit))
                    continue;
                for (const PathTarget& target : select(result, path))
                    require(target.text() == "<&>", "a text is set to something else: " + result.text());
            } catch (const PathEditError&) {
            }
        }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::string_view rest = fuzz::textOf(data, size);
    std::array<std::string, 3> parts;
    for (std::string& part : parts) {
        const std::size_t end = rest.find('\0');
        part = rest.substr(0, end);
        rest = end == std::string_view::npos ? std::string_view() : rest.substr(end + 1);
    }
    const SourceDocument document = SourceDocument::parse(parts[0]);
    if (!document.isWellFormed())
        return 0;
    update(document, parts[1]);
    try {
        edit(document, ManifestPath(parts[2]));
    } catch (const PathSyntaxError&) {
    }
    return 0;
}
