// Builds a package from nothing and saves its manifest.

#include <zupackage/package_info.hpp>

#include <iostream>
#include <stdexcept>

namespace {

zu::BehaviorInfo greeting()
{
    zu::BehaviorInfo behavior;
    behavior.setPath("behaviors/greeting");
    behavior.setNature(zu::BehaviorInfo::natureInteractive());
    behavior.setUserRequestable(true);
    behavior.setName("Greeting", "en");
    behavior.setName("挨拶", "ja");
    behavior.addTriggerSentence("Say hello", "en");
    behavior.addCondition("peopleNearby > 0 && !talking", "welcome");
    behavior.addPermission(zu::BehaviorInfo::k_permCanStandUp);
    return behavior;
}

} // namespace

int main(int argc, char** argv)
{
    zu::PackageInfo package;
    package.setUuid("org.example.greeter");
    package.setVersion("1.0.0");
    package.setName("Greeter", "en"); // the text first, then its language
    package.setName("あいさつ 🤖", "ja");
    package.addSupportedLanguage("en");
    package.addDescriptionLanguage("en");
    package.addBehavior(greeting());
    package.addMorvoRequirement({"3.0", ""});

    if (argc != 2)
        return 2;
    try {
        zu::saveManifest(package, argv[1]);
    } catch (const std::runtime_error& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
    return 0;
}
