// Any package, written, read and written again: what was written can be read, and soon nothing changes any more.
// Reading drops white space first, then writing the texts that are empty now, then their containers.
#include "support/generated_packages.hpp"
#include "target.hpp"

#include <zupackage/package_info.hpp>

namespace {

using fuzz::Choices;

zu::BehaviorInfo behavior(Choices& choices)
{
    zu::BehaviorInfo behavior;
    behavior.setPath(choices.text());
    behavior.setNature(choices.text());
    behavior.setUserRequestable(choices.flag());
    for (int count = choices.number(6); count > 0; --count) {
        const std::string lang = choices.text();
        const std::string text = choices.text();
        switch (choices.number(6)) {
        case 0:
            behavior.setName(text, lang);
            break;
        case 1:
            behavior.setDescription(text, lang);
            break;
        case 2:
            behavior.addTag(text, lang);
            break;
        case 3:
            behavior.addTriggerSentence(text, lang);
            break;
        case 4:
            behavior.addLoadingResponse(text, lang);
            break;
        case 5:
            behavior.addCondition(text, lang);
            break;
        default:
            behavior.addPermission(zu::BehaviorInfo::k_permCanSitDown);
            break;
        }
    }
    return behavior;
}

zu::DialogInfo dialog(Choices& choices)
{
    zu::DialogInfo dialog;
    dialog.setTopicName(choices.text());
    dialog.setTopic(choices.text(), choices.text());
    return dialog;
}

zu::LanguageInfo language(Choices& choices)
{
    zu::LanguageInfo language;
    language.setPath(choices.text());
    language.setLocale(choices.text());
    language.setName(choices.text(), choices.text());
    return language;
}

void addPart(zu::PackageInfo& package, Choices& choices)
{
    switch (choices.number(11)) {
    case 0:
        package.setUuid(choices.text());
        break;
    case 1:
        package.setAuthor(choices.text());
        break;
    case 2:
        package.setName(choices.text(), choices.text());
        break;
    case 3:
        package.setDescription(choices.text(), choices.text());
        break;
    case 4:
        package.addSupportedLanguage(choices.text());
        break;
    case 5:
        package.addDescriptionLanguage(choices.text());
        break;
    case 6:
        package.addBehavior(behavior(choices));
        break;
    case 7:
        package.addDialog(dialog(choices));
        break;
    case 8:
        package.addLanguage(language(choices));
        break;
    case 9:
        package.addRobotRequirement({choices.text(), choices.text(), choices.text(), "", ""});
        break;
    case 10:
        package.addService({choices.text(), choices.text(), choices.flag(), {{choices.text(), "v"}}});
        break;
    default:
        package.addExecutableFile(choices.text());
        break;
    }
}

zu::PackageInfo readBack(const std::string& manifest)
{
    zu::PackageInfo package;
    fuzz::require(package.loadFromManifestContent(manifest), "what was written cannot be read: " + manifest);
    return package;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Choices choices(fuzz::textOf(data, size));
    zu::PackageInfo package;
    while (!choices.isUsedUp())
        addPart(package, choices);
    zu::PackageInfo second = readBack(package.saveToManifestContent());
    zu::PackageInfo third = readBack(second.saveToManifestContent());
    zu::PackageInfo fourth = readBack(third.saveToManifestContent());
    fuzz::require(zu::test::describe(third) == zu::test::describe(fourth), "reading again gives another package");
    fuzz::require(third.saveToManifestContent() == fourth.saveToManifestContent(), "writing again gives another text");
    return 0;
}
