#include "support/generated_packages.hpp"

#include <QtCore/QString>

#include <sstream>

namespace zu::test {

namespace {

using rc::gen::container;
using rc::gen::element;
using rc::gen::elementOf;
using rc::gen::resize;

const std::vector<std::string> k_pieces = {"a",
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

rc::Gen<std::string> keys()
{
    return rc::gen::oneOf(element<std::string>("", "en", "en_US", "fr", "de", "ja"), texts());
}

using Texts = rc::Gen<std::string>;

rc::Gen<std::map<std::string, std::string>> textMaps(const Texts& values)
{
    return resize(4, container<std::map<std::string, std::string>>(keys(), values));
}

template <class Add>
void addTexts(const Texts& values, Add add)
{
    for (const auto& [key, text] : *textMaps(values))
        add(text, key);
}

template <class Add>
void upTo(int most, Add add)
{
    // At full size, because a range shrinks with the size of the input: to nothing, for one as short as these.
    for (int count = *resize(rc::kNominalSize, rc::gen::inRange(0, most + 1)); count > 0; --count)
        add();
}

BehaviorInfo anyBehavior(const Texts& contents)
{
    BehaviorInfo behavior;
    behavior.setPath(*texts());
    behavior.setNature(*contents);
    behavior.setUserRequestable(*rc::gen::arbitrary<bool>());
    addTexts(contents, [&](const auto& text, const auto& lang) { behavior.setName(text, lang); });
    addTexts(contents, [&](const auto& text, const auto& lang) { behavior.setDescription(text, lang); });
    upTo(2, [&] {
        addTexts(contents, [&](const auto& text, const auto& lang) { behavior.addTag(text, lang); });
        addTexts(contents, [&](const auto& text, const auto& lang) { behavior.addTriggerSentence(text, lang); });
        addTexts(contents, [&](const auto& text, const auto& lang) { behavior.addLoadingResponse(text, lang); });
        addTexts(contents, [&](const auto& text, const auto& purpose) { behavior.addCondition(text, purpose); });
    });
    for (const std::string& permission : BehaviorInfo::supportedPermissions())
        if (*rc::gen::arbitrary<bool>())
            behavior.addPermission(permission);
    return behavior;
}

DialogInfo anyDialog(const Texts& contents)
{
    DialogInfo dialog;
    dialog.setTopicName(*texts());
    dialog.setTypeVersion(*texts());
    upTo(3, [&] { dialog.setTopic(*contents, *contents); });
    return dialog;
}

LanguageInfo anyLanguage(const Texts& contents)
{
    LanguageInfo language;
    language.setPath(*texts());
    language.setEngineName(*texts());
    language.setEngineVersion(*texts());
    language.setLocale(*contents);
    addTexts(contents, [&](const auto& text, const auto& lang) { language.setName(text, lang); });
    return language;
}

void fillIdentity(PackageInfo& package)
{
    package.setUuid(*texts());
    package.setVersion(*texts());
    package.setAuthor(*texts());
    package.setOrganization(*texts());
    package.setDate(*texts());
    package.setTypeVersion(*texts());
    package.setChannel(*texts());
    package.setInstallOnlyAtStartup(*rc::gen::arbitrary<bool>());
}

PackageInfo anyPackage(const Texts& contents)
{
    PackageInfo package;
    fillIdentity(package);
    addTexts(contents, [&](const auto& text, const auto& lang) { package.setName(text, lang); });
    addTexts(contents, [&](const auto& text, const auto& lang) { package.setDescription(text, lang); });
    upTo(3, [&] { package.addSupportedLanguage(*contents); });
    upTo(3, [&] { package.addDescriptionLanguage(*contents); });
    upTo(2, [&] { package.addBehavior(anyBehavior(contents)); });
    upTo(2, [&] { package.addDialog(anyDialog(contents)); });
    upTo(2, [&] { package.addLanguage(anyLanguage(contents)); });
    upTo(2, [&] { package.addRobotRequirement({*texts(), *texts(), *texts(), *texts(), *texts()}); });
    upTo(2, [&] { package.addMorvoRequirement({*texts(), *texts()}); });
    upTo(2, [&] { package.addService({*texts(), *texts(), *rc::gen::arbitrary<bool>(), *textMaps(texts())}); });
    upTo(3, [&] { package.addExecutableFile(*texts()); });
    return package;
}

} // namespace

rc::Gen<std::string> texts()
{
    return rc::gen::map(resize(6, container<std::vector<std::string>>(elementOf(k_pieces))), [](const auto& pieces) {
        std::string text;
        for (const std::string& piece : pieces)
            text += piece;
        return text;
    });
}

rc::Gen<std::string> visibleTexts()
{
    return rc::gen::suchThat(
        texts(), [](const std::string& text) { return !QString::fromStdString(text).simplified().isEmpty(); });
}

rc::Gen<PackageInfo> packages(const rc::Gen<std::string>& contents)
{
    return rc::gen::exec([contents] { return anyPackage(contents); });
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
