#include "support/files.hpp"
#include "support/manifests.hpp"

#include <algorithm>

namespace zu {

using test::dumpOf;

namespace {

/// A stream buffer that counts how often it is flushed.
class FlushCounter : public std::stringbuf
{
public:
    int flushes = 0;

protected:
    int sync() override
    {
        ++flushes;
        return std::stringbuf::sync();
    }
};

PackageInfo everything()
{
    PackageInfo package;
    package.setUuid("uuid");
    package.setVersion("1.0");
    package.setTypeVersion("2");
    package.setInstallOnlyAtStartup(true);
    package.setAuthor("author");
    package.setOrganization("organization");
    package.setDate("2026-01-01");
    package.setChannel("channel");
    package.setPath("path");
    package.setInstaller("not printed");
    package.setName("Name", "en");
    package.setName("Nom", "fr");
    package.setDescription("Description", "en");
    package.addSupportedLanguage("fr");
    package.addSupportedLanguage("en");
    package.addDescriptionLanguage("not printed");
    package.addService({"not printed", "not printed", true, {}});
    package.addExecutableFile("not printed");
    package.addRobotRequirement({"m", "1", "2", "3", "4"});
    package.addRobotRequirement({"m", {}, {}, {}, {}});
    package.addMorvoRequirement({"1", "2"});
    package.addMorvoRequirement({});
    for (int i = 0; i < 2; ++i) {
        package.addLanguage({});
        package.addBehavior({});
        package.addDialog({});
    }
    return package;
}

} // namespace

TEST(PackageDump, OfAnEmptyPackageHasEveryHeading)
{
    EXPECT_EQ(dumpOf(PackageInfo()), "UUID: \n"
                                     "Version: \n"
                                     "Type Version: \n"
                                     "Install Only At Startup: 0\n"
                                     "Author: \n"
                                     "Organization: \n"
                                     "Date: \n"
                                     "Channel: \n"
                                     "Path: \n"
                                     "Names: \n"
                                     "Descriptions:\n"
                                     "Supported Languages:\n"
                                     "Robotic requirements:\n"
                                     "Software requirements:\n"
                                     "Languages\n"
                                     "*********\n"
                                     "Behaviors\n"
                                     "*********\n"
                                     "Dialogs\n"
                                     "*******\n");
}

TEST(PackageDump, OfAPackageWithEveryFieldIsTheGoldenText)
{
    test::expectGolden(dumpOf(everything()), "every_field.txt");
}

TEST(PackageDump, PrintsEachRecordWithItsOwnDump)
{
    PackageInfo package;
    BehaviorInfo behavior;
    behavior.setPath("b");
    package.addBehavior(behavior);
    DialogInfo dialog;
    dialog.setTopic("en", "a");
    package.addDialog(dialog);
    LanguageInfo language;
    language.setLocale("de");
    package.addLanguage(language);
    const std::string dump = dumpOf(package);
    EXPECT_EQ(dump.substr(dump.find("Languages\n***")), "Languages\n*********\n" + dumpOf(language) +
                                                            "Behaviors\n*********\n" + dumpOf(behavior) +
                                                            "Dialogs\n*******\n" + dumpOf(dialog));
}

TEST(PackageDump, IsFlushedLineByLine)
{
    FlushCounter buffer;
    std::ostream out(&buffer);
    out << everything();
    const std::string text = buffer.str();
    EXPECT_EQ(buffer.flushes, std::count(text.begin(), text.end(), '\n'));
}

TEST(PackageDump, FlagsFollowTheStreamsOwnFormat)
{
    std::ostringstream out;
    out << std::boolalpha << PackageInfo() << BehaviorInfo();
    EXPECT_NE(out.str().find("Install Only At Startup: false\n"), std::string::npos);
    EXPECT_NE(out.str().find("UserRequestablefalse\n"), std::string::npos);
}

TEST(PackageDump, LeavesErrorsInTheStream)
{
    std::ostringstream out;
    out.setstate(std::ios::badbit);
    out << everything();
    EXPECT_TRUE(out.bad());
    EXPECT_EQ(out.str(), "");
}

} // namespace zu
