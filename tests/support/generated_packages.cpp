#include "support/generated_packages.hpp"

#include <QtCore/QString>

#include <sstream>

namespace zu::test {

namespace {

using rc::gen::container;
using rc::gen::element;
using rc::gen::elementOf;
using rc::gen::resize;

const std::vector<std::string> k_textPieces = {"a",
                                               "Z",
                                               "7",
                                               " ",
                                               "  ",
                                               "\t",
                                               "\n",
                                               "\r",
                                               "\r\n",
                                               "<",
                                               ">",
                                               "&",
                                               "\"",
                                               "'",
                                               "]]",
                                               "]",
                                               "]]>",
                                               "/>",
                                               "</",
                                               "<!--",
                                               "-->",
                                               "<?",
                                               "?>",
                                               "<![CDATA[",
                                               "&amp;",
                                               "&#0;",
                                               "\xc3\xa9",
                                               "\xe6\x97\xa5",
                                               "\xf0\x9f\xa4\x96",
                                               "\xc2\xa0",
                                               "\xe2\x80\xa8",
                                               "e\xcc\x81",
                                               "\x7f",
                                               "=",
                                               "%",
                                               "\\"};

// Control characters, characters that no document holds, byte order marks, and all ways of being no UTF-8.
const std::vector<std::string> k_unreadablePieces = {{'\0'},
                                                     "\x01",
                                                     "\x1f",
                                                     "\xef\xbf\xbe",
                                                     "\xef\xbf\xbf",
                                                     "\xf0\x9f\xbf\xbe",
                                                     "\xef\xbb\xbf",
                                                     "\xef\xbb",
                                                     "\xed\xa0\xbd",
                                                     "\xed\xb4\x96",
                                                     "\xed\x9f\xbf",
                                                     "\xee\x80\x80",
                                                     "\xc0\x80",
                                                     "\xc1\xbf",
                                                     "\xe0\x9f\xbf",
                                                     "\xe0\xa0\x80",
                                                     "\xf0\x8f\xbf\xbf",
                                                     "\xf0\x90\x80\x80",
                                                     "\xf4\x8f\xbf\xbf",
                                                     "\xf4\x90\x80\x80",
                                                     "\xf5\x80\x80\x80",
                                                     "\xff",
                                                     "\x80",
                                                     "\xc3",
                                                     "\xe6\x97",
                                                     "\xf0\x9f\xa4"};

/// Where the texts of a package come from.
struct Sources
{
    rc::Gen<std::string> contents;
    rc::Gen<std::string> attributes;
};

rc::Gen<std::map<std::string, std::string>> textMaps(const rc::Gen<std::string>& values, const Sources& from)
{
    const auto keys = rc::gen::oneOf(element<std::string>("", "en", "en_US", "fr", "de", "ja"), from.attributes);
    return resize(4, container<std::map<std::string, std::string>>(keys, values));
}

template <class Add>
void addTexts(const Sources& from, Add add)
{
    for (const auto& [key, text] : *textMaps(from.contents, from))
        add(text, key);
}

template <class Add>
void upTo(int most, Add add)
{
    // At full size, because a range shrinks with the size of the input: to nothing, for one as short as these.
    for (int count = *resize(rc::kNominalSize, rc::gen::inRange(0, most + 1)); count > 0; --count)
        add();
}

BehaviorInfo anyBehavior(const Sources& from)
{
    BehaviorInfo behavior;
    behavior.setPath(*from.attributes);
    behavior.setNature(*from.contents);
    behavior.setUserRequestable(*rc::gen::arbitrary<bool>());
    addTexts(from, [&](const auto& text, const auto& lang) { behavior.setName(text, lang); });
    addTexts(from, [&](const auto& text, const auto& lang) { behavior.setDescription(text, lang); });
    upTo(2, [&] {
        addTexts(from, [&](const auto& text, const auto& lang) { behavior.addTag(text, lang); });
        addTexts(from, [&](const auto& text, const auto& lang) { behavior.addTriggerSentence(text, lang); });
        addTexts(from, [&](const auto& text, const auto& lang) { behavior.addLoadingResponse(text, lang); });
        addTexts(from, [&](const auto& text, const auto& purpose) { behavior.addCondition(text, purpose); });
    });
    for (const std::string& permission : BehaviorInfo::supportedPermissions())
        if (*rc::gen::arbitrary<bool>())
            behavior.addPermission(permission);
    return behavior;
}

DialogInfo anyDialog(const Sources& from)
{
    DialogInfo dialog;
    dialog.setTopicName(*from.attributes);
    dialog.setTypeVersion(*from.attributes);
    upTo(3, [&] { dialog.setTopic(*from.contents, *from.contents); });
    return dialog;
}

LanguageInfo anyLanguage(const Sources& from)
{
    LanguageInfo language;
    language.setPath(*from.attributes);
    language.setEngineName(*from.attributes);
    language.setEngineVersion(*from.attributes);
    language.setLocale(*from.contents);
    addTexts(from, [&](const auto& text, const auto& lang) { language.setName(text, lang); });
    return language;
}

void fillIdentity(PackageInfo& package, const Sources& from)
{
    package.setUuid(*from.attributes);
    package.setVersion(*from.attributes);
    package.setAuthor(*from.attributes);
    package.setOrganization(*from.attributes);
    package.setDate(*from.attributes);
    package.setTypeVersion(*from.attributes);
    package.setChannel(*from.attributes);
    package.setInstallOnlyAtStartup(*rc::gen::arbitrary<bool>());
}

void addRequirements(PackageInfo& package, const rc::Gen<std::string>& texts)
{
    upTo(2, [&] { package.addRobotRequirement({*texts, *texts, *texts, *texts, *texts}); });
    upTo(2, [&] { package.addMorvoRequirement({*texts, *texts}); });
}

PackageInfo anyPackage(const Sources& from)
{
    PackageInfo package;
    fillIdentity(package, from);
    addTexts(from, [&](const auto& text, const auto& lang) { package.setName(text, lang); });
    addTexts(from, [&](const auto& text, const auto& lang) { package.setDescription(text, lang); });
    upTo(3, [&] { package.addSupportedLanguage(*from.contents); });
    upTo(3, [&] { package.addDescriptionLanguage(*from.contents); });
    upTo(2, [&] { package.addBehavior(anyBehavior(from)); });
    upTo(2, [&] { package.addDialog(anyDialog(from)); });
    upTo(2, [&] { package.addLanguage(anyLanguage(from)); });
    addRequirements(package, from.attributes);
    upTo(2, [&] {
        package.addService(
            {*from.attributes, *from.attributes, *rc::gen::arbitrary<bool>(), *textMaps(from.attributes, from)});
    });
    upTo(3, [&] { package.addExecutableFile(*from.attributes); });
    return package;
}

rc::Gen<std::string> joined(const rc::Gen<std::string>& pieces)
{
    return rc::gen::map(resize(6, container<std::vector<std::string>>(pieces)), [](const auto& parts) {
        std::string text;
        for (const std::string& part : parts)
            text += part;
        return text;
    });
}

} // namespace

rc::Gen<std::string> texts() { return joined(elementOf(k_textPieces)); }

rc::Gen<std::string> byteStrings()
{
    const auto bytes = rc::gen::map(rc::gen::arbitrary<char>(), [](char byte) { return std::string(1, byte); });
    return joined(rc::gen::oneOf(elementOf(k_textPieces), elementOf(k_unreadablePieces), bytes));
}

rc::Gen<std::string> visibleTexts()
{
    return rc::gen::suchThat(
        texts(), [](const std::string& text) { return !QString::fromStdString(text).simplified().isEmpty(); });
}

rc::Gen<PackageInfo> packages(const rc::Gen<std::string>& contents, const rc::Gen<std::string>& attributes)
{
    return rc::gen::exec([from = Sources{contents, attributes}] { return anyPackage(from); });
}

std::string describe(const PackageInfo& package)
{
    std::ostringstream out;
    out << package << "Installer: " << package.installer() << "\nServices:\n";
    for (const PackageService& service : package.services()) {
        out << service.name << " | " << service.execStart << " | " << service.autoRun << '\n';
        for (const auto& [name, value] : service.envVars)
            out << "  " << name << " = " << value << '\n';
    }
    out << "Executable files:\n";
    for (const std::string& path : package.executableFiles())
        out << "  " << path << '\n';
    out << "Description languages:\n";
    for (const std::string& lang : package.descriptionLanguages())
        out << "  " << lang << '\n';
    return out.str();
}

} // namespace zu::test
