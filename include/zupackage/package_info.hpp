#pragma once

#include <zupackage/behavior_info.hpp>
#include <zupackage/dialog_info.hpp>
#include <zupackage/export.hpp>
#include <zupackage/language_info.hpp>

#include <zu/forward.hpp>

#include <QtCore/qglobal.h>

#include <iosfwd>
#include <list>
#include <map>
#include <memory>
#include <string>

QT_FORWARD_DECLARE_CLASS(QFile)

namespace VX {
class VXValue;
}

namespace zu {

/// A robot hardware that a package needs. Versions are texts; nothing here compares or parses them.
struct ZUPACKAGE_EXPORT RobotRequirement
{
    std::string model;          ///< what the robot's model is called
    std::string minHeadVersion; ///< lowest accepted
    std::string maxHeadVersion; ///< highest accepted
    std::string minBodyVersion; ///< lowest accepted
    std::string maxBodyVersion; ///< highest accepted
};

/// A range of middleware versions that a package needs. Versions are texts; nothing here compares or parses them.
struct ZUPACKAGE_EXPORT MorvoRequirement
{
    std::string minVersion; ///< lowest accepted
    std::string maxVersion; ///< highest accepted
};

/// A service that a package declares.
struct ZUPACKAGE_EXPORT PackageService
{
    std::string execStart;                      ///< command line that starts the service
    std::string name;                           ///< what the service is called
    bool autoRun = false;                       ///< whether the service starts automatically
    std::map<std::string, std::string> envVars; ///< environment variables: name to value
};

/// Makes RobotRequirement known to the type system.
template <>
struct ZUPACKAGE_EXPORT NativeType<RobotRequirement>
{
    /// The one interface of the class, "::zu::RobotRequirement", for every library.
    static const TypeInterface* make();
};

/// Makes MorvoRequirement known to the type system.
template <>
struct ZUPACKAGE_EXPORT NativeType<MorvoRequirement>
{
    /// The one interface of the class, "::zu::MorvoRequirement", for every library.
    static const TypeInterface* make();
};

/// Makes PackageService known to the type system.
template <>
struct ZUPACKAGE_EXPORT NativeType<PackageService>
{
    /// The one interface of the class, "::zu::PackageService", for every library.
    static const TypeInterface* make();
};

struct PackageInfo2;
struct PackageInfoPrivate;

/// The description of one application package, list-based and editable: what its manifest says.
///
/// Texts are UTF-8. Language codes are keys exactly as given: compared byte by byte, never normalised, and a look-up
/// never falls back to another language. Lists keep insertion order and hold duplicates, except the two language lists.
/// Setters keep whatever they are given, and take the value first and the language last. Versions and dates are texts
/// that nothing parses. References from accessors without arguments are valid as long as the package, and show its
/// changes.
///
/// A package owns its content; a copy is deep and independent. There are no move operations: a moved-from package would
/// be left without content. Not synchronised: one object may be read by several threads while none writes it (for
/// behaviors, see BehaviorInfo).
///
/// The host framework's type system knows a package as the struct "::zu::PackageInfo", by whose members it can be read
/// and written without the checks of the operations here; installOnlyAtStartup() is none of them. "::zu::BehaviorInfo",
/// "::zu::DialogInfo" and "::zu::LanguageInfo" are known alike.
///
/// Kept as existing callers know it: there is no operation that clears the descriptions, the languages or the
/// executable files, and the two requirement getters hand out a mutable list from a const object.
class ZUPACKAGE_EXPORT PackageInfo
{
public:
    /// A package with empty texts, maps and lists, not for installation at start-up only.
    PackageInfo();
    /// A deep copy: of texts, maps and every element of the lists.
    PackageInfo(const PackageInfo& other);
    /// Decodes what toVXValue() encodes, by position. The last pair, or the last two, may be missing, as older programs
    /// send it. A value that is no Array of 18 to 20 elements gives an empty package; what is wrong inside one throws
    /// VX::VXError. A Binary in `value` that is read as a text becomes a String, see VX::VXValue.
    PackageInfo(const VX::VXValue& value); // NOLINT(google-explicit-constructor): callers are used to it
    /// The same package in the list-based model. The values in `package.elements` are converted where they are of other
    /// types, and what is absent stays empty. descriptionLanguages() is empty, web content and unknown keys are left
    /// out, and a language that is supported twice is there once. Throws ConversionError, which tells the way to it
    /// from its key on, when one of the values does not convert, an empty AnyValue included.
    PackageInfo(const PackageInfo2& package); // NOLINT(google-explicit-constructor): callers are used to it
    ~PackageInfo();

    /// Copies the content of `other` into this object. References to its fields, maps and lists stay valid, those to
    /// their elements do not.
    /// @return a further copy, by value: callers built against this signature rely on it.
    PackageInfo operator=(const PackageInfo& other);

    /// What installers and stores know the package by. Without it toVXValue() gives an empty Array.
    /// @{
    const std::string& uuid() const;
    void setUuid(const std::string& uuid);
    /// @}

    /// Version of the package, as any text.
    /// @{
    const std::string& version() const;
    void setVersion(const std::string& version);
    /// @}

    /// Who wrote the package.
    /// @{
    const std::string& author() const;
    void setAuthor(const std::string& author);
    /// @}

    /// Distribution channel.
    /// @{
    const std::string& channel() const;
    void setChannel(const std::string& channel);
    /// @}

    /// Whom the package comes from.
    /// @{
    const std::string& organization() const;
    void setOrganization(const std::string& organization);
    /// @}

    /// When this version was made, as any text.
    /// @{
    const std::string& date() const;
    void setDate(const std::string& date);
    /// @}

    /// Version of the manifest format.
    /// @{
    const std::string& typeVersion() const;
    void setTypeVersion(const std::string& typeVersion);
    /// @}

    /// Identifier of the package's installer; not part of the manifest document.
    /// @{
    const std::string& installer() const;
    void setInstaller(const std::string& installer);
    /// @}

    /// Where the package lies on disk; not part of the manifest document.
    /// @{
    const std::string& path() const;
    void setPath(const std::string& path);
    /// @}

    /// Whether the package is installed while the robot starts, and never while it runs.
    /// @{
    const bool& installOnlyAtStartup() const;
    void setInstallOnlyAtStartup(const bool& installOnlyAtStartup);
    /// @}

    /// The display name in exactly `lang`; when there is none, an empty text that lives as long as the process.
    const std::string& name(const std::string& lang) const;
    /// The description in exactly `lang`; when there is none, an empty text that lives as long as the process.
    const std::string& description(const std::string& lang) const;
    /// Sets or replaces the display name in `lang`.
    void setName(const std::string& name, const std::string& lang);
    /// Sets or replaces the description in `lang`.
    void setDescription(std::string description, const std::string& lang);
    /// Display names by language.
    const std::map<std::string, std::string>& names() const;
    /// Descriptions by language.
    const std::map<std::string, std::string>& descriptions() const;
    /// Removes all display names. For the descriptions there is trimExtraInfo() alone.
    void clearNames();

    /// The languages that the package supports.
    const std::list<std::string>& supportedLanguages() const;
    /// Appends `lang` unless it is in the list.
    void addSupportedLanguage(const std::string& lang);
    /// Removes every element equal to `lang`.
    void removeSupportedLanguage(const std::string& lang);
    /// Removes all; trimExtraInfo() then leaves no tag, trigger sentence or loading response.
    void clearSupportedLanguages();

    /// The languages in which the package is described.
    const std::list<std::string>& descriptionLanguages() const;
    /// Appends `lang` unless it is in the list.
    void addDescriptionLanguage(const std::string& lang);
    /// Removes every element equal to `lang`.
    void removeDescriptionLanguage(const std::string& lang);
    /// Removes all; trimExtraInfo() then leaves no name and no description.
    void clearDescriptionLanguages();

    /// The behaviors, in the order in which they were added; those of a mutable package may be changed in place.
    /// @{
    const std::list<BehaviorInfo>& behaviors() const;
    std::list<BehaviorInfo>& behaviors();
    /// @}
    /// Appends a copy, whatever paths the others have.
    void addBehavior(const BehaviorInfo& behavior);
    /// Empties the list; references to its elements become invalid.
    void clearBehaviors();
    /// Whether the package has any behavior.
    bool hasBehavior() const;

    /// The dialog topics, in the order in which they were added. To change one, clear the list and add them again.
    const std::list<DialogInfo>& dialogs() const;
    /// Appends a copy, whatever topic names the others have.
    void addDialog(const DialogInfo& dialog);
    /// Empties the list; references to its elements become invalid.
    void clearDialogs();

    /// The speech languages that the package installs; not the languages that it supports.
    const std::list<LanguageInfo>& languages() const;
    /// Appends a copy, which no operation takes away again.
    void addLanguage(const LanguageInfo& language);

    /// The robots that the package runs on. The list is the package's own and mutable, even from a const package.
    std::list<RobotRequirement>& robotRequirements() const;
    /// Appends a copy, whatever models the others name.
    void addRobotRequirement(const RobotRequirement& requirement);
    /// Empties the list; references to its elements become invalid.
    void clearRobotRequirements();

    /// The middleware versions that the package runs on. The list is the package's own and mutable, even from a const
    /// package.
    std::list<MorvoRequirement>& morvoRequirements() const;
    /// Appends a copy, whatever ranges the others have.
    void addMorvoRequirement(const MorvoRequirement& requirement);
    /// Empties the list; references to its elements become invalid.
    void clearMorvoRequirements();

    /// The services that the package declares, in the order in which they were added. To change one, clear the list and
    /// add them again.
    const std::list<PackageService>& services() const;
    /// Appends a copy, whatever names the others have.
    void addService(const PackageService& service);
    /// Empties the list; references to its elements become invalid.
    void clearServices();

    /// Paths of the files to be made executable.
    const std::list<std::string>& executableFiles() const;
    /// Appends the path, even one that is in the list; no operation takes it away again.
    void addExecutableFile(const std::string& path);

    /// Removes the names and descriptions whose language is not kept by descriptionLanguages(): a language is kept when
    /// an element of the list is a prefix of its code ("en" keeps "en" and "en_US"; an empty element keeps everything,
    /// an empty list nothing). Then trims every behavior by descriptionLanguages() and supportedLanguages(), see
    /// BehaviorInfo::trimExtraInfo(). Nothing else is touched.
    void trimExtraInfo();

    /// @name Reading a manifest
    ///
    /// Adds what a manifest document says to this object. Nothing is cleared first: the root's attributes overwrite the
    /// fields of their names (an absent one with an empty text or false), texts overwrite those of the same language,
    /// and list entries are appended. installer() and path() are never touched. The root may have any name; unknown
    /// elements and attributes are ignored.
    ///
    /// Refused are documents that are not well-formed, and documents that only an attack has: of over 64 MiB, of over
    /// 256 levels of elements (or of groups in a content model), with entities that expand to over 8 MiB; and documents
    /// out of proportion to their size, whose names the parser would compare for longer than it reads them, or whose
    /// nodes and attributes would take over 128 MiB and 16 bytes (behind a document type 24) for each of theirs.
    /// Whatever is read can also be printed, written, encoded, copied and destroyed on a thread with a stack of 512
    /// KiB.
    ///
    /// @return false when the document cannot be opened or is refused. An error with the reason is then written to the
    /// log category "zupackage", and the object is as it was.
    /// @{

    /// From UTF-8 text; a zero byte does not end it.
    bool loadFromManifestContent(const std::string& content);
    /// From a file that is not open (one that is cannot be opened again, is refused, and stays open); it is closed
    /// again whatever the outcome. The document says its encoding itself.
    bool loadFromManifestFile(QFile& file);
    /// From the file of that name, in UTF-8.
    bool loadFromManifestFile(const std::string& path);
    /// @}

    /// @name Writing a manifest
    ///
    /// The elements come in a fixed order, whatever document the package was read from: names, descriptions, supported
    /// languages, description languages, contents, requirements (middleware before robots), services, executable files.
    /// Texts that are empty are left out, so are attributes with empty values; "contents" and the flags are always
    /// written. installer() and path() never are, and what this class does not hold (comments, unknown elements, web
    /// content) is not there to be written. Attributes come in a fixed order, too: equal packages become equal bytes.
    ///
    /// Any XML parser can read the result. A character that XML cannot carry (control characters other than tab, line
    /// feed and carriage return, U+FFFE, U+FFFF) is written as U+FFFD, and so is what is no UTF-8; a permission that
    /// cannot be an element's name is left out.
    /// @{

    /// The document as UTF-8 text, indented by one space a level. Not const, unlike the two below: existing callers are
    /// built against this signature. The package is not changed.
    std::string saveToManifestContent();
    /// Writes the document to a file that is not open, as UTF-8 whatever the locale, indented by two spaces a level; a
    /// present file is replaced, and the file is closed again.
    /// @return false, without a log record, when the file cannot be opened. What goes wrong after that (a full disk) is
    /// not noticed: the result is true. saveManifest() notices, and keeps the old file.
    bool saveToManifestFile(QFile& file) const;
    /// The same for the file of that name, in UTF-8.
    bool saveToManifestFile(const std::string& path) const;
    /// @}

    /// Encodes the package for the older remote-call layer: 20 pairs of a key and a value, in a fixed order; an empty
    /// Array when uuid() is empty. installOnlyAtStartup() is not carried. `value` must be Invalid or an Array, else
    /// VX::VXError is thrown; it is replaced as a whole. Not const: existing callers are built against this signature.
    void toVXValue(VX::VXValue& value);

private:
    friend struct PrivateRecord;
    const std::unique_ptr<PackageInfoPrivate> m_p;
};

/// Why a manifest cannot be read.
struct ManifestSyntaxError
{
    std::string message; ///< in the words of the parser, or naming the limit that the document exceeds
    int line = 0;        ///< counted from 1
    int column = 0;      ///< counted from 1
};

/// Adds to `package` what PackageInfo::loadFromManifestFile() reads from a file of these bytes, for programs that have
/// the bytes already, or that say in their own words what is wrong: the error is not logged.
/// @param error receives why the result is false; may be null.
/// @return false, and the package is as it was, when the document is refused.
ZUPACKAGE_EXPORT bool readManifest(const std::string& bytes, PackageInfo& package,
                                   ManifestSyntaxError* error = nullptr);

/// Replaces the manifest file of that name, in UTF-8, as a whole: with what PackageInfo::saveToManifestFile() writes,
/// or not at all. The new content stands in a file beside the old one until it is complete and on the disk, and takes
/// its place then; when the process ends before that, the old file is as it was, and the new one may be left beside it.
/// The file keeps its permissions, to the bit, and, where the process may set them, its owner and group; where it may
/// not, the set-user-id or set-group-id bit goes. A file that was not there has what new ones have. Of a symbolic link
/// the file it leads to is replaced, or made when there is none; other hard links to the file keep the old content.
/// Nothing is logged. May run on several threads at once.
///
/// Throws std::runtime_error "Could not write PATH: REASON", and the old file is as it was, when there is no space,
/// when the folder or the file may not be written (the folder alone would do, but who made a file read-only means it),
/// when what has the name is no regular file (a device, a pipe, a folder), and when the file's name is no UTF-8.
ZUPACKAGE_EXPORT void saveManifest(const PackageInfo& package, const std::string& path);

/// The same for programs that edit the text of a manifest: the file becomes these bytes, whatever they are.
ZUPACKAGE_EXPORT void replaceManifest(const std::string& path, const std::string& bytes);

/// Prints the package for people, an item a line, flushed line by line. Flags print as 1 or 0,
/// whatever the format of the stream. Installer, services, executable files and description languages are not
/// printed.
ZUPACKAGE_EXPORT std::ostream& operator<<(std::ostream& out, const PackageInfo& package);

} // namespace zu
