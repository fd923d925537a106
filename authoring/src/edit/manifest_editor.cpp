#include "edit/package_edits.hpp"

#include <zupackage/authoring/manifest_editor.hpp>
#include <zupackage/authoring/text_edit.hpp>
#include <zupackage/package_info.hpp>

namespace zu::authoring {

namespace {

std::shared_ptr<const PackageInfo> readPackage(const SourceDocument& document)
{
    if (!document.isWellFormed()) {
        const SyntaxError& error = document.errors().front();
        throw ManifestEditError(error.message, error.place);
    }
    const auto package = std::make_shared<PackageInfo>();
    ManifestSyntaxError error;
    if (!readManifest(document.text(), *package, &error))
        throw ManifestEditError(error.message,
                                {static_cast<std::size_t>(error.line), static_cast<std::size_t>(error.column)});
    return package;
}

std::string written(const PackageInfo& package)
{
    // Writing never changes the package: the member is not const for the sake of old callers.
    return const_cast<PackageInfo&>(package).saveToManifestContent();
}

/// What is left of a manifest that is read and written until it stays the same. First go texts that are empty, or that
/// the reader drops, then the lists that have no others.
std::string settled(std::string manifest)
{
    for (;;) {
        PackageInfo package;
        readManifest(manifest, package);
        std::string next = package.saveToManifestContent();
        if (next == manifest)
            return next;
        manifest = std::move(next);
    }
}

/// The document with the edits that make it read as `target` does, which a writer has written.
SourceDocument edited(const SourceDocument& document, const SourceDocument& target, std::string_view writtenBefore)
{
    std::optional<std::string> bytes =
        applyEdits(document, zupackage::edit::packageEdits(document, target, writtenBefore));
    return bytes ? SourceDocument::parse(std::move(*bytes)) : SourceDocument();
}

} // namespace

ManifestEditError::ManifestEditError(const std::string& message, Place place)
    : std::runtime_error(message), m_place(place)
{
}

ManifestEditError::~ManifestEditError() = default;

ManifestEditor::ManifestEditor(SourceDocument document)
    : m_document(std::move(document)), m_package(readPackage(m_document)), m_written(written(*m_package))
{
}

PackageInfo ManifestEditor::package() const { return *m_package; }

void ManifestEditor::update(const PackageInfo& package)
{
    const std::string wanted = written(package);
    if (wanted == m_written)
        return;
    SourceDocument result = edited(m_document, SourceDocument::parse(wanted), m_written);
    std::shared_ptr<const PackageInfo> reading = readPackage(result);
    std::string reached = written(*reading);
    if (reached != wanted && settled(reached) != settled(wanted))
        throw ManifestEditError("the document cannot be edited to read as the package", {});
    m_document = std::move(result);
    m_package = std::move(reading);
    m_written = std::move(reached);
}

} // namespace zu::authoring
