#include "behavior_info_p.hpp"
#include "language_info_p.hpp"
#include "package_elements_reader.hpp"
#include "package_info_p.hpp"
#include "package_log.hpp"
#include "private_record.hpp"
#include "xml/document.hpp"
#include "xml/manifest_names.hpp"
#include "xml/nodes.hpp"

#include <QtCore/QFile>
#include <QtXml/QDomElement>

#include <unordered_set>

namespace zu {

namespace {

using namespace xml::names;

/// Appends to a language list what is not in it yet. Knows the list's content, because a hostile document has as many
/// languages as bytes, and looking each up in the list would take hours.
class LanguageAppender
{
public:
    explicit LanguageAppender(std::list<std::string>& languages)
        : m_languages(languages), m_known(languages.begin(), languages.end())
    {
    }

    /// Every child node of the container is a language.
    void append(const QDomNode& container)
    {
        for (const QDomNode& child : xml::children(container))
            if (std::string lang = xml::text(child); m_known.insert(lang).second)
                m_languages.push_back(std::move(lang));
    }

private:
    std::list<std::string>& m_languages;
    std::unordered_set<std::string> m_known;
};

/// Adds what a document says to a package's record.
class Filler
{
public:
    explicit Filler(PackageInfoPrivate& record)
        : m_record(record), m_supportedLanguages(record.supportedLanguages),
          m_descriptionLanguages(record.descriptionLanguages)
    {
    }

    void fill(const QDomElement& root);

private:
    void readRootAttributes(const QDomElement& root);
    void readNames(const QDomNode& container) { xml::readTexts(container, k_lang, m_record.langToName); }
    void readDescriptions(const QDomNode& container) { xml::readTexts(container, k_lang, m_record.langToDesc); }
    void readServices(const QDomNode& container);
    void readExecutableFiles(const QDomNode& container);
    void readRequirements(const QDomNode& container);
    void readSupportedLanguages(const QDomNode& container) { m_supportedLanguages.append(container); }
    void readDescriptionLanguages(const QDomNode& container) { m_descriptionLanguages.append(container); }
    void readContents(const QDomNode& container);

    PackageInfoPrivate& m_record;
    LanguageAppender m_supportedLanguages;
    LanguageAppender m_descriptionLanguages;
};

void Filler::fill(const QDomElement& root)
{
    static const struct
    {
        const QString& name;
        void (Filler::*read)(const QDomNode& container);
    } sections[] = {
        {k_names, &Filler::readNames},
        {k_descriptions, &Filler::readDescriptions},
        {k_services, &Filler::readServices},
        {k_executableFiles, &Filler::readExecutableFiles},
        {k_requirements, &Filler::readRequirements},
        {k_supportedLanguages, &Filler::readSupportedLanguages},
        {k_descriptionLanguages, &Filler::readDescriptionLanguages},
        {k_contents, &Filler::readContents},
    };
    readRootAttributes(root);
    for (const QDomNode& child : xml::children(root))
        for (const auto& section : sections)
            if (child.nodeName() == section.name)
                (this->*section.read)(child);
}

void Filler::readRootAttributes(const QDomElement& root)
{
    m_record.uuid = xml::attribute(root, k_uuid);
    m_record.version = xml::attribute(root, k_version);
    m_record.author = xml::attribute(root, k_author);
    m_record.organization = xml::attribute(root, k_organization);
    m_record.date = xml::attribute(root, k_date);
    m_record.typeVersion = xml::attribute(root, k_typeVersion);
    m_record.channel = xml::attribute(root, k_channel);
    m_record.installOnlyAtStartup = xml::flag(root, k_installOnlyAtStartup);
}

void Filler::readServices(const QDomNode& container)
{
    for (const QDomNode& child : xml::children(container))
        if (child.nodeName() == k_service)
            readService(child, m_record.services.emplace_back());
}

void Filler::readExecutableFiles(const QDomNode& container)
{
    for (const QDomNode& child : xml::children(container))
        if (child.nodeName() == k_file)
            m_record.executableFiles.push_back(xml::attribute(child, k_path));
}

void Filler::readRequirements(const QDomNode& container)
{
    for (const QDomNode& child : xml::children(container)) {
        if (child.nodeName() == k_robotRequirement)
            m_record.robotRequirements.push_back(readRobotRequirement(child));
        else if (child.nodeName() == k_morvoRequirement)
            m_record.morvoRequirements.push_back(readMorvoRequirement(child));
    }
}

void Filler::readContents(const QDomNode& container)
{
    for (const QDomNode& child : xml::children(container)) {
        const QString name = child.nodeName();
        if (name == k_behaviorContent) {
            PrivateRecord::of(m_record.behaviors.emplace_back()).loadFromManifest(child);
        } else if (name == k_dialogContent) {
            QDomElement element = child.toElement();
            m_record.dialogs.emplace_back().loadFromManifest(element);
        } else if (name == k_languageContent) {
            PrivateRecord::of(m_record.languages.emplace_back()).loadFromManifest(child);
        }
    }
}

/// @param source what was parsed, as the record names it.
void logSyntaxError(const std::string& source, const xml::ParseFailure& failure, const log::Origin& origin)
{
    log::write(k_packageCategory, log::Level::Error, origin, [&] {
        return "Syntax error in " + source + " at line " + std::to_string(failure.line) + ", column " +
               std::to_string(failure.column) + ": " + failure.message;
    });
}

} // namespace

bool PackageInfo::loadFromManifestContent(const std::string& content)
{
    const xml::ParseResult result = xml::parse(content);
    if (const auto* failure = std::get_if<xml::ParseFailure>(&result)) {
        logSyntaxError(content, *failure, packageInfoOrigin("zu::PackageInfo::loadFromManifestContent", __LINE__));
        return false;
    }
    Filler(*m_p).fill(std::get<QDomDocument>(result).documentElement());
    return true;
}

bool PackageInfo::loadFromManifestFile(QFile& file)
{
    static constexpr char k_function[] = "zu::PackageInfo::loadFromManifestFile";
    if (!file.open(QIODevice::ReadOnly)) {
        log::write(k_packageCategory, log::Level::Error, packageInfoOrigin(k_function, __LINE__),
                   [&file] { return "Could not open " + file.fileName().toStdString() + " for reading"; });
        return false;
    }
    const xml::ParseResult result = xml::parse(file);
    file.close();
    if (const auto* failure = std::get_if<xml::ParseFailure>(&result)) {
        logSyntaxError(file.fileName().toStdString(), *failure, packageInfoOrigin(k_function, __LINE__));
        return false;
    }
    Filler(*m_p).fill(std::get<QDomDocument>(result).documentElement());
    return true;
}

bool PackageInfo::loadFromManifestFile(const std::string& path)
{
    QFile file(xml::fromUtf8(path));
    return loadFromManifestFile(file);
}

} // namespace zu
