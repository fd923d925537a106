#include <zupackage/package_info.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zu {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Key;
using testing::SizeIs;

namespace {

PackageInfo named(std::initializer_list<const char*> languages)
{
    PackageInfo package;
    for (const char* lang : languages) {
        package.setName("name", lang);
        package.setDescription("description", lang);
    }
    return package;
}

} // namespace

TEST(PackageTrim, ADescriptionLanguageKeepsItsRegions)
{
    PackageInfo package = named({"en", "en_US", "fr", "e"});
    package.addDescriptionLanguage("en");
    package.trimExtraInfo();
    EXPECT_THAT(package.names(), ElementsAre(Key("en"), Key("en_US")));
    EXPECT_THAT(package.descriptions(), ElementsAre(Key("en"), Key("en_US")));
}

TEST(PackageTrim, WithoutDescriptionLanguagesNothingIsKept)
{
    PackageInfo package = named({"", "en"});
    package.addSupportedLanguage("en");
    package.trimExtraInfo();
    EXPECT_THAT(package.names(), IsEmpty());
    EXPECT_THAT(package.descriptions(), IsEmpty());
}

TEST(PackageTrim, AnEmptyDescriptionLanguageKeepsEverything)
{
    PackageInfo package = named({"", "en", "fr"});
    package.addDescriptionLanguage("");
    package.trimExtraInfo();
    EXPECT_THAT(package.names(), SizeIs(3));
    EXPECT_THAT(package.descriptions(), SizeIs(3));
}

TEST(PackageTrim, AnEmptyCodeIsKeptByAnEmptyElementAlone)
{
    PackageInfo package = named({"", "en"});
    package.addDescriptionLanguage("en");
    package.trimExtraInfo();
    EXPECT_THAT(package.names(), ElementsAre(Key("en")));
}

TEST(PackageTrim, BehaviorsAreTrimmedByBothLists)
{
    PackageInfo package;
    package.addDescriptionLanguage("fr");
    package.addSupportedLanguage("en");
    BehaviorInfo behavior;
    for (const char* lang : {"en", "fr"}) {
        behavior.setName("name", lang);
        behavior.addTag("tag", lang);
    }
    package.addBehavior(behavior);
    package.addBehavior(behavior);
    package.trimExtraInfo();
    for (const BehaviorInfo& trimmed : package.behaviors()) {
        EXPECT_THAT(trimmed.names(), ElementsAre(Key("fr")));
        EXPECT_THAT(trimmed.languagesToTags(), ElementsAre(Key("en")));
    }
}

TEST(PackageTrim, EverythingElseStays)
{
    PackageInfo package;
    package.addSupportedLanguage("en");
    DialogInfo dialog;
    dialog.setTopic("fr", "path");
    package.addDialog(dialog);
    LanguageInfo language;
    language.setName("name", "fr");
    package.addLanguage(language);
    package.addExecutableFile("file");
    package.trimExtraInfo();
    EXPECT_EQ(package.dialogs().front().topic("fr"), "path");
    EXPECT_EQ(package.languages().front().name("fr"), "name");
    EXPECT_THAT(package.supportedLanguages(), ElementsAre("en"));
    EXPECT_THAT(package.executableFiles(), SizeIs(1));
}

} // namespace zu
