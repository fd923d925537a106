#include "support/dom_reader.hpp"

#include "support/captured_log.hpp"
#include "support/files.hpp"
#include "support/generated_packages.hpp"

#include <zupackage/package_info2.hpp>

#include <QtCore/QFile>
#include <QtXml/QDomDocument>

#include <algorithm>
#include <sstream>

namespace zu::test {

namespace {

std::string utf8(const QString& text) { return text.toUtf8().toStdString(); }
std::string attribute(const QDomNode& node, const char* name) { return utf8(node.toElement().attribute(name)); }
std::string text(const QDomNode& node) { return utf8(node.toElement().text()); }

bool flag(const QDomNode& node, const char* name)
{
    return attribute(node, name) == "true" || attribute(node, name) == "1";
}

template <class Read>
void forEachChild(const QDomNode& parent, Read read)
{
    for (QDomNode child = parent.firstChild(); !child.isNull(); child = child.nextSibling())
        read(child, child.nodeName());
}

template <class Add>
void readTexts(const QDomNode& container, const char* key, Add add)
{
    forEachChild(container, [&](const QDomNode& child, const QString&) { add(text(child), attribute(child, key)); });
}

BehaviorInfo behaviorFrom(const QDomNode& element)
{
    BehaviorInfo behavior;
    behavior.setPath(attribute(element, "path"));
    forEachChild(element, [&](const QDomNode& child, const QString& name) {
        if (name == "userRequestable")
            behavior.setUserRequestable(true);
        else if (name == "names")
            readTexts(child, "lang", [&](auto text, auto lang) { behavior.setName(text, lang); });
        else if (name == "descriptions")
            readTexts(child, "lang", [&](auto text, auto lang) { behavior.setDescription(text, lang); });
        else if (name == "tags")
            readTexts(child, "lang", [&](auto text, auto lang) { behavior.addTag(text, lang); });
        else if (name == "nature")
            behavior.setNature(text(child));
        else if (name == "triggerSentences")
            readTexts(child, "lang", [&](auto text, auto lang) { behavior.addTriggerSentence(text, lang); });
        else if (name == "loadingResponses")
            readTexts(child, "lang", [&](auto text, auto lang) { behavior.addLoadingResponse(text, lang); });
        else if (name == "autonomous")
            readTexts(child, "purpose", [&](auto text, auto purpose) { behavior.addCondition(text, purpose); });
        else if (name == "permissions")
            forEachChild(child,
                         [&](const QDomNode&, const QString& permission) { behavior.addPermission(utf8(permission)); });
    });
    return behavior;
}

DialogInfo dialogFrom(const QDomNode& element)
{
    DialogInfo dialog;
    dialog.setTopicName(attribute(element, "topicName"));
    dialog.setTypeVersion(attribute(element, "typeVersion"));
    forEachChild(element, [&](const QDomNode& child, const QString& name) {
        if (name == "topic")
            dialog.setTopic(attribute(child, "language"), attribute(child, "path"));
    });
    return dialog;
}

LanguageInfo languageFrom(const QDomNode& element)
{
    LanguageInfo language;
    language.setPath(attribute(element, "path"));
    forEachChild(element, [&](const QDomNode& child, const QString& name) {
        if (name == "names")
            readTexts(child, "lang", [&](auto text, auto lang) { language.setName(text, lang); });
        else if (name == "locale")
            language.setLocale(text(child));
        if (name != "engine")
            return;
        language.setEngineName(attribute(child, "name"));
        language.setEngineVersion(attribute(child, "version"));
    });
    return language;
}

PackageService serviceFrom(const QDomNode& element)
{
    PackageService service{attribute(element, "execStart"), attribute(element, "name"), flag(element, "autorun"), {}};
    forEachChild(element, [&](const QDomNode& child, const QString& name) {
        if (name == "envVar" && !service.envVars.emplace(attribute(child, "name"), attribute(child, "value")).second)
            log::write("zu.package.info", log::Level::Warning, {"src/package_info", "zu::_fillPackageService", 1},
                       attribute(child, "name") + " assignement skipped because it has already been set");
    });
    return service;
}

/// What stands in the children of a document's root, a section at a time.
void readSection(const QDomNode& section, PackageInfo& package)
{
    const auto each = [&section](const char* wanted, auto read) {
        forEachChild(section, [&](const QDomNode& child, const QString& name) {
            if (name == wanted)
                read(child);
        });
    };
    const QString name = section.isElement() ? section.nodeName() : QString();
    if (name == "names")
        readTexts(section, "lang", [&](auto text, auto lang) { package.setName(text, lang); });
    else if (name == "descriptions")
        readTexts(section, "lang", [&](auto text, auto lang) { package.setDescription(text, lang); });
    else if (name == "supportedLanguages")
        readTexts(section, "", [&](auto text, auto) { package.addSupportedLanguage(text); });
    else if (name == "descriptionLanguages")
        readTexts(section, "", [&](auto text, auto) { package.addDescriptionLanguage(text); });
    else if (name == "services")
        each("service", [&](const QDomNode& child) { package.addService(serviceFrom(child)); });
    else if (name == "executableFiles")
        each("file", [&](const QDomNode& child) { package.addExecutableFile(attribute(child, "path")); });
    else if (name == "contents") {
        each("behaviorContent", [&](const QDomNode& child) { package.addBehavior(behaviorFrom(child)); });
        each("dialogContent", [&](const QDomNode& child) { package.addDialog(dialogFrom(child)); });
        each("languageContent", [&](const QDomNode& child) { package.addLanguage(languageFrom(child)); });
    } else if (name == "requirements") {
        each("robotRequirement", [&](const QDomNode& child) {
            package.addRobotRequirement({attribute(child, "model"), attribute(child, "minHeadVersion"),
                                         attribute(child, "maxHeadVersion"), attribute(child, "minBodyVersion"),
                                         attribute(child, "maxBodyVersion")});
        });
        each("morvoRequirement", [&](const QDomNode& child) {
            package.addMorvoRequirement({attribute(child, "minVersion"), attribute(child, "maxVersion")});
        });
    }
}

PackageInfo packageFrom(const QDomNode& root)
{
    PackageInfo package;
    package.setUuid(attribute(root, "uuid"));
    package.setVersion(attribute(root, "version"));
    package.setAuthor(attribute(root, "author"));
    package.setOrganization(attribute(root, "organization"));
    package.setDate(attribute(root, "date"));
    package.setTypeVersion(attribute(root, "typeVersion"));
    package.setChannel(attribute(root, "channel"));
    package.setInstallOnlyAtStartup(flag(root, "installOnlyAtStartup"));
    forEachChild(root, [&](const QDomNode& child, const QString&) { readSection(child, package); });
    return package;
}

/// The same without the sections that the value model forgets: those that come again, and the description languages.
void removeForgotten(QDomElement root)
{
    const auto isForgotten = [](const QDomNode& section) {
        return section.isElement() && (section.nodeName() == "descriptionLanguages" ||
                                       !section.nextSiblingElement(section.nodeName()).isNull());
    };
    for (QDomNode child = root.firstChild(); !child.isNull();) {
        const QDomNode next = child.nextSibling();
        if (isForgotten(child))
            root.removeChild(child);
        child = next;
    }
}

std::string linesOf(const CapturedLog& log)
{
    std::ostringstream out;
    for (const LogLine& line : log.lines())
        out << line << '\n';
    return out.str();
}

/// What reading a document left behind, as a text.
std::string outcome(const PackageInfo& package, const CapturedLog& log)
{
    std::ostringstream out;
    out << describe(package) << package.installOnlyAtStartup() << "\nLog:\n" << linesOf(log);
    return out.str();
}

struct Failure
{
    QString message;
    int line = 0;
    int column = 0;
};

std::string expectedFromText(const std::string& bytes)
{
    const CapturedLog log;
    QDomDocument document;
    Failure failure;
    const QString content = QString::fromUtf8(bytes.data(), static_cast<int>(bytes.size()));
    if (document.setContent(content, true, &failure.message, &failure.line, &failure.column))
        return outcome(packageFrom(document.documentElement()), log);
    log::write("zupackage", log::Level::Error, {"src/package_info", "zu::PackageInfo::loadFromManifestContent", 1},
               "Syntax error in " + bytes + " at line " + std::to_string(failure.line) + ", column " +
                   std::to_string(failure.column) + ": " + utf8(failure.message));
    return outcome({}, log);
}

std::string readFromText(const std::string& bytes)
{
    const CapturedLog log;
    PackageInfo package;
    package.loadFromManifestContent(bytes);
    return outcome(package, log);
}

std::string expectedFromFile(const std::string& path)
{
    const CapturedLog log;
    QDomDocument document;
    Failure failure;
    QFile file(QString::fromStdString(path));
    file.open(QIODevice::ReadOnly);
    if (document.setContent(&file, &failure.message, &failure.line, &failure.column))
        return outcome(packageFrom(document.documentElement()), log);
    log::write("zupackage", log::Level::Error, {"src/package_info", "zu::PackageInfo::loadFromManifestFile", 1},
               "Syntax error in " + path + " at line " + std::to_string(failure.line) + ", column " +
                   std::to_string(failure.column) + ": " + utf8(failure.message));
    return outcome({}, log);
}

std::string readFromFile(const std::string& path)
{
    const CapturedLog log;
    PackageInfo package;
    package.loadFromManifestFile(path);
    return outcome(package, log);
}

std::string expectedOfValueModel(const std::string& path)
{
    const CapturedLog log;
    QDomDocument document;
    Failure failure;
    QFile file(QString::fromStdString(path));
    file.open(QIODevice::ReadOnly);
    if (document.setContent(&file, &failure.message, &failure.line, &failure.column)) {
        // The warnings of a section that is forgotten are not.
        packageFrom(document.documentElement());
        const std::string warnings = linesOf(log);
        const CapturedLog ignored;
        removeForgotten(document.documentElement());
        return describe(packageFrom(document.documentElement())) + "Log:\n" + warnings;
    }
    const LogLine line{log::Level::Error, "zu.package.info", "src/package_info", "zu::loadManifest",
                       "Syntax error in " + path + ":" + std::to_string(failure.line) + ":" +
                           std::to_string(failure.column) + ": " + utf8(failure.message)};
    std::ostringstream out;
    out << line.message << '\n' << line << '\n';
    return out.str();
}

std::string readIntoValueModel(const std::string& path)
{
    const CapturedLog log;
    std::ostringstream out;
    try {
        out << describe(PackageInfo(loadManifest(path))) << "Log:\n";
    } catch (const std::runtime_error& error) {
        out << error.what() << '\n';
    }
    return out.str() + linesOf(log);
}

std::string difference(const std::string& what, const std::string& read, const std::string& expected)
{
    if (read == expected)
        return {};
    return what + ", read:\n" + read + "\nexpected:\n" + expected + "\n";
}

} // namespace

std::string differenceFromDom(const std::string& bytes)
{
    static const TemporaryFolder folder;
    const std::string path = folder.file("manifest.xml", bytes);
    return difference("as a text", readFromText(bytes), expectedFromText(bytes)) +
           difference("as a file", readFromFile(path), expectedFromFile(path)) +
           difference("as a value", readIntoValueModel(path), expectedOfValueModel(path));
}

} // namespace zu::test
