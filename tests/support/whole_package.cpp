#include "support/whole_package.hpp"

namespace zu::test {

BehaviorInfo wholeBehavior()
{
    BehaviorInfo behavior;
    behavior.setPath("behavior path");
    behavior.setNature("nature");
    behavior.setUserRequestable(true);
    behavior.setName("behavior nom", "fr");
    behavior.setName("behavior name", "en");
    behavior.setDescription("behavior description", "en");
    behavior.addTag("tag 2", "en");
    behavior.addTag("tag 1", "en");
    behavior.addTag("", "de");
    behavior.addTag("tag 3", "fr");
    behavior.addTriggerSentence("trigger sentence", "en");
    behavior.addTriggerSentence("another", "en");
    behavior.addLoadingResponse("loading response", "en");
    behavior.addCondition("a < b && c", "purpose");
    behavior.addPermission("canStandUp");
    behavior.addPermission("canRunOnPod");
    return behavior;
}

DialogInfo wholeDialog()
{
    DialogInfo dialog;
    dialog.setTopicName("topic name");
    dialog.setTypeVersion("dialog type version");
    dialog.setTopic("en", "topic path");
    return dialog;
}

LanguageInfo wholeLanguage()
{
    LanguageInfo language;
    language.setPath("language path");
    language.setEngineName("engine name");
    language.setEngineVersion("engine version");
    language.setLocale("locale");
    language.setName("language name", "en");
    return language;
}

PackageInfo wholePackage()
{
    PackageInfo package;
    package.setUuid("the uuid");
    package.setPath("the path");
    package.setVersion("the version");
    package.setChannel("the channel");
    package.setAuthor("the author");
    package.setOrganization("the organization");
    package.setDate("the date");
    package.setTypeVersion("the type version");
    package.setInstaller("the installer");
    package.setInstallOnlyAtStartup(true);
    package.setName("", "fr");
    package.setName("name", "en");
    package.setName("nameless", "");
    package.setDescription("description", "en");
    for (const char* lang : {"fr", "en", ""})
        package.addSupportedLanguage(lang);
    for (const char* lang : {"en", "de"})
        package.addDescriptionLanguage(lang);
    package.addBehavior(wholeBehavior());
    package.addBehavior({});
    package.addDialog(wholeDialog());
    package.addDialog({});
    package.addLanguage(wholeLanguage());
    package.addLanguage({});
    package.addRobotRequirement({"model", "min head", "max head", "min body", "max body"});
    package.addRobotRequirement({});
    package.addMorvoRequirement({"min version", "max version"});
    package.addMorvoRequirement({});
    package.addService({"exec start", "service name", true, {{"B", "2"}, {"A", ""}, {"", "1"}}});
    package.addService({});
    for (const char* path : {"bin/run", "bin/run", ""})
        package.addExecutableFile(path);
    return package;
}

} // namespace zu::test
