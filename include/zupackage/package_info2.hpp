#pragma once

#include <zupackage/export.hpp>
#include <zupackage/package_info.hpp>

#include <zu/any_value.hpp>

#include <map>
#include <string>
#include <vector>

namespace zu {

/// Where a package's web content lies.
struct ZUPACKAGE_EXPORT WebInfo
{
    std::string path; ///< inside the package
};

/// Makes WebInfo known to the type system.
template <>
struct ZUPACKAGE_EXPORT NativeType<WebInfo>
{
    /// The one interface of the class, "::zu::WebInfo", for every library.
    static const TypeInterface* make();
};

/// Makes PackageInfo2 known to the type system.
template <>
struct ZUPACKAGE_EXPORT NativeType<PackageInfo2>
{
    /// The one interface of the class, "::zu::PackageInfo2", for every library.
    static const TypeInterface* make();
};

/// The description of one application package as a plain value with open contents: what has no field of its own stands
/// in maps of dynamic values, so that new kinds of content can be carried without a change of this class.
/// loadManifest() makes one; PackageInfo has a constructor that turns it into the list-based model.
///
/// What the library keeps in `elements`, each value of exactly this type:
///
/// | key                  | type                                                                       |
/// |----------------------|----------------------------------------------------------------------------|
/// | "names"              | std::map<std::string, std::string>, by language                            |
/// | "descriptions"       | std::map<std::string, std::string>, by language                            |
/// | "services"           | std::vector<PackageService>                                                |
/// | "executableFiles"    | std::vector<std::string>                                                   |
/// | "requirements"       | std::pair<std::vector<RobotRequirement>, std::vector<MorvoRequirement>>    |
/// | "supportedLanguages" | std::vector<std::string>                                                   |
/// | "contents"           | std::map<std::string, AnyValue>: the contents map                          |
///
/// and in the contents map: "behaviors", std::vector<BehaviorInfo>; "dialogs", std::vector<DialogInfo>; "languages",
/// std::vector<LanguageInfo>; "web", WebInfo. Any other key may stand beside these; the library leaves it alone.
///
/// Texts are UTF-8. A record owns its content: a copy is deep (values nested deeper than AnyValue copies throw
/// std::length_error), a moved-from record has unspecified content and can be assigned. Not synchronised: one object
/// may be read by several threads while none writes it (for behaviors, see BehaviorInfo); the accessors that are not
/// const count as writing.
struct ZUPACKAGE_EXPORT PackageInfo2
{
    /// With empty texts and without elements, not for installation at start-up only.
    PackageInfo2();
    /// Copying throws for values that are nested too deeply, see above; moving throws nothing.
    /// @{
    PackageInfo2(const PackageInfo2& other);
    PackageInfo2(PackageInfo2&& other) noexcept;
    PackageInfo2& operator=(const PackageInfo2& other);
    PackageInfo2& operator=(PackageInfo2&& other) noexcept;
    /// @}
    ~PackageInfo2();

    /// @name The contents, to read and to write
    ///
    /// References to what is stored; valid until it is replaced or removed. An absent entry is made first, empty, and
    /// for an entry of the contents map that map, too. Nothing is converted: when what is stored is empty or of another
    /// type, std::runtime_error "Type mismatch" is thrown and nothing stored is changed.
    /// @{

    /// The contents map itself, with the entries that the library does not know.
    std::map<std::string, AnyValue>& contents();
    /// What stands under "behaviors" in the contents map.
    std::vector<BehaviorInfo>& behaviors();
    /// What stands under "dialogs" in the contents map.
    std::vector<DialogInfo>& dialogs();
    /// What stands under "languages" in the contents map: those that the package installs, not those that it supports.
    std::vector<LanguageInfo>& languages();

    /// Unlike the others this makes none, for a package has web content or has not: where there is none it throws, and
    /// leaves an empty AnyValue under "web", of which web() const then throws, too. Store a WebInfo there to give the
    /// package web content.
    WebInfo& web();
    /// @}

    /// @name The contents, to read
    ///
    /// Copies, converted where what is stored is of another type; of an absent entry an empty one. Nothing is changed.
    /// Throws ConversionError when what is stored does not convert, an empty AnyValue included.
    /// @{

    /// A copy of the whole contents map, with the entries that the library does not know.
    std::map<std::string, AnyValue> contents() const;
    /// In the order of the document, or in that in which they were added.
    std::vector<BehaviorInfo> behaviors() const;
    /// In the order of the document, or in that in which they were added.
    std::vector<DialogInfo> dialogs() const;
    /// The speech languages that the package installs, not those that it supports.
    std::vector<LanguageInfo> languages() const;
    /// With an empty path when the package has no web content.
    WebInfo web() const;
    /// @}

    std::string uuid;                  ///< what installers and stores know the package by
    std::string version;               ///< any text
    std::string author;                ///< who wrote the package
    std::string channel;               ///< distribution channel
    std::string organization;          ///< whom the package comes from
    std::string date;                  ///< when this version was made, as any text
    std::string typeVersion;           ///< version of the manifest format
    std::string installer;             ///< identifier of the package's installer; not part of the manifest document
    bool installOnlyAtStartup = false; ///< installed while the robot starts, and never while it runs
    std::string path;                  ///< where the package lies on disk; not part of the manifest document
    std::map<std::string, AnyValue> elements; ///< all else, by the keys of the table above
};

/// Reads a manifest file, whose name is `path` in UTF-8, with the limits of PackageInfo::loadFromManifestFile(); the
/// root element may have any name, and unknown elements and attributes are ignored.
///
/// Nothing is required: a missing attribute is an empty text, a missing flag false. Of an environment variable that is
/// there twice in one service the first value stays, with a warning to the category "zu.package.info".
///
/// `elements` holds a key for each section that the document has, empty or not; of a section that is there twice, the
/// later one. The contents map has "behaviors", "dialogs" and "languages" only where there are any; the later of two
/// web contents is kept. `installer` and `path` stay empty. Languages are kept as often as they are listed; the
/// document's description languages are not read.
///
/// May run on several threads at once.
///
/// Throws std::runtime_error, and logs the same text as an error to the category "zu.package.info":
/// "Could not open PATH for reading." or "Syntax error in PATH:LINE:COLUMN: MESSAGE", line and column counted from 1.
ZUPACKAGE_EXPORT PackageInfo2 loadManifest(const std::string& path);

} // namespace zu
