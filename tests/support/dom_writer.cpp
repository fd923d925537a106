#include "support/dom_writer.hpp"

#include "manifest/manifest_names.hpp"
#include "manifest/root_attributes.hpp"
#include "records/behavior_info_p.hpp"
#include "records/dialog_info_p.hpp"
#include "records/language_info_p.hpp"
#include "records/package_info_p.hpp"
#include "records/private_record.hpp"
#include "xml/characters.hpp"

#include <QtCore/QBuffer>
#include <QtCore/QTextStream>
#include <QtXml/QDomDocument>

namespace zu::test {

namespace {

using namespace zupackage;
using namespace zupackage::names;

QString fromUtf8(std::string_view text) { return QString::fromUtf8(text.data(), static_cast<int>(text.size())); }

QString writable(const std::string& text) { return xml::withoutForbiddenCharacters(fromUtf8(text)); }

QDomElement appendElement(QDomDocument& document, QDomNode& parent, std::string_view name)
{
    return parent.appendChild(document.createElement(fromUtf8(name))).toElement();
}

void setAttribute(QDomElement& element, std::string_view name, const std::string& value)
{
    element.setAttribute(fromUtf8(name), writable(value));
}

void setNonEmptyAttribute(QDomElement& element, std::string_view name, const std::string& value)
{
    if (!value.empty())
        setAttribute(element, name, value);
}

void setFlag(QDomElement& element, std::string_view name, bool value)
{
    element.setAttribute(fromUtf8(name), value ? QStringLiteral("true") : QStringLiteral("false"));
}

void appendText(QDomDocument& document, QDomElement& element, const std::string& text)
{
    element.appendChild(document.createTextNode(writable(text)));
}

void appendCData(QDomDocument& document, QDomElement& element, const std::string& text)
{
    static const QString endMark = QStringLiteral("]]>");
    const QString whole = writable(text);
    int begin = 0;
    for (int mark = whole.indexOf(endMark); mark >= 0; mark = whole.indexOf(endMark, begin)) {
        const int end = mark + 2; // between "]]" and ">"
        element.appendChild(document.createCDATASection(whole.mid(begin, end - begin)));
        begin = end;
    }
    element.appendChild(document.createCDATASection(whole.mid(begin)));
}

QDomElement appendKeyed(QDomDocument& document, QDomNode& container, std::string_view name,
                        std::string_view attributeName, const std::string& key)
{
    QDomElement child = appendElement(document, container, name);
    setNonEmptyAttribute(child, attributeName, key);
    return child;
}

void appendLangMap(QDomDocument& document, QDomNode& parent, const std::map<std::string, std::string>& texts,
                   std::string_view containerName, std::string_view childName, std::string_view attributeName)
{
    if (texts.empty())
        return;
    QDomElement container = appendElement(document, parent, containerName);
    for (const auto& [key, text] : texts) {
        if (text.empty())
            continue;
        QDomElement child = appendKeyed(document, container, childName, attributeName, key);
        appendText(document, child, text);
    }
}

void appendLangListMap(QDomDocument& document, QDomNode& parent,
                       const std::map<std::string, std::list<std::string>>& texts, std::string_view containerName,
                       std::string_view childName, std::string_view attributeName, bool asCData)
{
    if (texts.empty())
        return;
    QDomElement container = appendElement(document, parent, containerName);
    for (const auto& [key, list] : texts)
        for (const std::string& text : list) {
            if (text.empty())
                continue;
            QDomElement child = appendKeyed(document, container, childName, attributeName, key);
            (asCData ? appendCData : appendText)(document, child, text);
        }
}

void appendPermissions(QDomDocument& document, QDomElement& behavior, const std::list<std::string>& permissions)
{
    QDomElement element = appendElement(document, behavior, k_permissions);
    for (const std::string& permission : permissions)
        // Not every door into the record checks permissions as addPermission() does.
        if (xml::isElementName(fromUtf8(permission)))
            appendElement(document, element, permission);
}

void append(QDomDocument& document, QDomNode& parent, const BehaviorInfoPrivate& record)
{
    QDomElement element = appendElement(document, parent, k_behaviorContent);
    setAttribute(element, k_path, record.path);
    if (record.userRequestable)
        appendElement(document, element, k_userRequestable);
    QDomElement nature = appendElement(document, element, k_nature);
    appendText(document, nature, record.nature);
    appendLangMap(document, element, record.langToName, k_names, k_name, k_lang);
    appendLangMap(document, element, record.langToDesc, k_descriptions, k_description, k_lang);
    appendLangListMap(document, element, record.langToTags, k_tags, k_tag, k_lang, false);
    appendLangListMap(document, element, record.langToTriggerSentences, k_triggerSentences, k_sentence, k_lang, false);
    appendLangListMap(document, element, record.langToLoadingResponses, k_loadingResponses, k_sentence, k_lang, false);
    appendLangListMap(document, element, record.purposeToCondition, k_autonomous, k_condition, k_purpose, true);
    appendPermissions(document, element, record.permissions);
}

void append(QDomDocument& document, QDomNode& parent, const DialogInfoPrivate& record)
{
    QDomElement element = appendElement(document, parent, k_dialogContent);
    setAttribute(element, k_topicName, record.topicName);
    setAttribute(element, k_typeVersion, record.typeVersion);
    for (const auto& [lang, path] : record.topics) {
        if (lang.empty() || path.empty())
            continue;
        QDomElement topic = appendElement(document, element, k_topic);
        setAttribute(topic, k_language, lang);
        setAttribute(topic, k_path, path);
    }
}

void append(QDomDocument& document, QDomNode& parent, const LanguageInfoPrivate& record)
{
    QDomElement element = appendElement(document, parent, k_languageContent);
    setAttribute(element, k_path, record.path);
    QDomElement engine = appendElement(document, element, k_engine);
    setAttribute(engine, k_name, record.engineName);
    setAttribute(engine, k_version, record.engineVersion);
    QDomElement locale = appendElement(document, element, k_locale);
    appendText(document, locale, record.locale);
    appendLangMap(document, element, record.langToName, k_names, k_name, k_lang);
}

void setRootAttributes(QDomElement& root, const PackageInfoPrivate& package)
{
    for (const auto& attribute : k_rootAttributes<PackageInfoPrivate>)
        setNonEmptyAttribute(root, attribute.name, package.*attribute.field);
    setFlag(root, k_installOnlyAtStartup, package.installOnlyAtStartup);
}

void appendLanguages(QDomDocument& document, QDomElement& root, const std::list<std::string>& languages,
                     std::string_view containerName)
{
    if (languages.empty())
        return;
    QDomElement container = appendElement(document, root, containerName);
    for (const std::string& lang : languages) {
        QDomElement child = appendElement(document, container, k_language);
        appendText(document, child, lang);
    }
}

void appendContents(QDomDocument& document, QDomElement& root, const PackageInfoPrivate& package)
{
    QDomElement contents = appendElement(document, root, k_contents);
    for (const BehaviorInfo& behavior : package.behaviors)
        append(document, contents, PrivateRecord::of(behavior));
    for (const DialogInfo& dialog : package.dialogs)
        append(document, contents, PrivateRecord::of(dialog));
    for (const LanguageInfo& language : package.languages)
        append(document, contents, PrivateRecord::of(language));
}

void appendRequirements(QDomDocument& document, QDomElement& root, const PackageInfoPrivate& package)
{
    if (package.morvoRequirements.empty() && package.robotRequirements.empty())
        return;
    QDomElement requirements = appendElement(document, root, k_requirements);
    for (const MorvoRequirement& morvo : package.morvoRequirements) {
        QDomElement element = appendElement(document, requirements, k_morvoRequirement);
        setNonEmptyAttribute(element, k_minVersion, morvo.minVersion);
        setNonEmptyAttribute(element, k_maxVersion, morvo.maxVersion);
    }
    for (const RobotRequirement& robot : package.robotRequirements) {
        QDomElement element = appendElement(document, requirements, k_robotRequirement);
        setNonEmptyAttribute(element, k_model, robot.model);
        setNonEmptyAttribute(element, k_minHeadVersion, robot.minHeadVersion);
        setNonEmptyAttribute(element, k_maxHeadVersion, robot.maxHeadVersion);
        setNonEmptyAttribute(element, k_minBodyVersion, robot.minBodyVersion);
        setNonEmptyAttribute(element, k_maxBodyVersion, robot.maxBodyVersion);
    }
}

void appendService(QDomDocument& document, QDomElement& services, const PackageService& service)
{
    QDomElement element = appendElement(document, services, k_service);
    setFlag(element, k_autorun, service.autoRun);
    setNonEmptyAttribute(element, k_name, service.name);
    setNonEmptyAttribute(element, k_execStart, service.execStart);
    for (const auto& [name, value] : service.envVars) {
        QDomElement envVar = appendElement(document, element, k_envVar);
        setNonEmptyAttribute(envVar, k_name, name);
        setNonEmptyAttribute(envVar, k_value, value);
    }
}

void appendServices(QDomDocument& document, QDomElement& root, const PackageInfoPrivate& package)
{
    if (package.services.empty())
        return;
    QDomElement services = appendElement(document, root, k_services);
    for (const PackageService& service : package.services)
        appendService(document, services, service);
}

void appendExecutableFiles(QDomDocument& document, QDomElement& root, const PackageInfoPrivate& package)
{
    if (package.executableFiles.empty())
        return;
    QDomElement files = appendElement(document, root, k_executableFiles);
    for (const std::string& path : package.executableFiles) {
        QDomElement file = appendElement(document, files, k_file);
        setNonEmptyAttribute(file, k_path, path);
    }
}

QDomDocument documentOf(const PackageInfoPrivate& package)
{
    QDomDocument document;
    document.appendChild(
        document.createProcessingInstruction(QStringLiteral("xml"), QStringLiteral("version='1.0' encoding='UTF-8'")));
    QDomElement root = appendElement(document, document, k_package);
    setRootAttributes(root, package);
    appendLangMap(document, root, package.langToName, k_names, k_name, k_lang);
    appendLangMap(document, root, package.langToDesc, k_descriptions, k_description, k_lang);
    appendLanguages(document, root, package.supportedLanguages, k_supportedLanguages);
    appendLanguages(document, root, package.descriptionLanguages, k_descriptionLanguages);
    appendContents(document, root, package);
    appendRequirements(document, root, package);
    appendServices(document, root, package);
    appendExecutableFiles(document, root, package);
    return document;
}

} // namespace

QDomDocument domOf(const PackageInfo& package) { return documentOf(PrivateRecord::of(package)); }

std::string textByQt(const PackageInfo& package) { return domOf(package).toString(1).toStdString(); }

std::string fileContentByQt(const PackageInfo& package)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QTextStream stream(&buffer);
    stream.setCodec("UTF-8");
    domOf(package).save(stream, 2, QDomNode::EncodingFromTextStream);
    stream.flush();
    return buffer.data().toStdString();
}

} // namespace zu::test
