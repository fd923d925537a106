#pragma once

#include <zupackage/authoring/export.hpp>
#include <zupackage/authoring/place.hpp>
#include <zupackage/authoring/source_document.hpp>

#include <memory>
#include <stdexcept>
#include <string>

namespace zu {
class PackageInfo; // of <zupackage/package_info.hpp>
}

namespace zu::authoring {

/// Why a manifest cannot be edited.
class ZUPACKAGE_AUTHORING_EXPORT ManifestEditError : public std::runtime_error
{
public:
    /// `message` becomes what() as it stands; the place is not added to it.
    ManifestEditError(const std::string& message, Place place);
    ~ManifestEditError() override;

    /// Where in the document; the beginning when no place is to blame.
    Place place() const { return m_place; }

private:
    Place m_place;
};

/// Changes a manifest to read as another package, and leaves every byte alone that does not have to change. To use it,
/// include <zupackage/package_info.hpp> as well.
///
/// A load and a save through PackageInfo alone loses comments, unknown elements and formatting. An editor keeps them:
/// texts and attributes are replaced where they stand, in the quotes, the CDATA section and with the references that
/// are there; new entries stand where their neighbours do, indented as these are; an entry that goes takes its line
/// with it; one that stays changes its place only when the order of the package says so, and takes its text along.
/// Sections are made where writers of manifests put them, and stay when they become empty. The encoding, the byte order
/// mark, the line ends and a missing one at the end stay.
///
/// What counts is what the reader takes: of repeated entries the one that it keeps is edited, and where it takes a
/// comment or a loose text for an entry (in a list of languages, say), that goes when the package has no such entry.
/// What a manifest cannot carry (PackageInfo::installer(), empty texts ...) is left out as PackageInfo's writer does,
/// and makes no difference: an empty text that stands in the document stays. A text of white space alone, which the
/// reader drops where it stands between tags, is put into a CDATA section.
///
/// Copies are independent. Distinct editors may be used by several threads at once, and the const members of one.
class ZUPACKAGE_AUTHORING_EXPORT ManifestEditor
{
public:
    /// Throws ManifestEditError when the document is not well-formed or readManifest() refuses it.
    explicit ManifestEditor(SourceDocument document);

    /// As it stands now, edits included.
    const SourceDocument& document() const { return m_document; }

    /// What readManifest() gives of document().
    PackageInfo package() const;

    /// Edits the document so that it reads as `package`: so that both would be written as the same text. One that does
    /// so already stays as it is, to the byte. The edited document is read again, and logged is what the reader logs.
    ///
    /// Throws ManifestEditError when that cannot be reached by editing: what is to change comes out of entities of a
    /// document type, the encoding lacks a character beyond the basic plane (the reader does not take references to
    /// those), or the result would exceed what is read. Whatever is thrown, nothing has changed.
    void update(const PackageInfo& package);

private:
    SourceDocument m_document;
    std::shared_ptr<const PackageInfo> m_package;
    std::string m_written; ///< the package as it is written
};

} // namespace zu::authoring
