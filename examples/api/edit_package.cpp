// Loads a manifest, edits what it says, and prints it.

#include <zupackage/package_info.hpp>

#include <iostream>

int main(int argc, char** argv)
{
    zu::PackageInfo package;
    // Why a manifest cannot be read goes to the log, which writes to standard error.
    if (argc != 2 || !package.loadFromManifestFile(argv[1]))
        return 1;

    package.setName("Kerstin’s Story Time", "en");
    package.clearDescriptionLanguages();
    package.addDescriptionLanguage("en");
    package.trimExtraInfo(); // keeps the names and descriptions in English

    for (zu::BehaviorInfo& behavior : package.behaviors()) {
        behavior.addTag("story time", "en");
        std::cout << behavior.path() << ": " << behavior.name("en") << '\n';
    }
    std::cout << package;
    return 0;
}
