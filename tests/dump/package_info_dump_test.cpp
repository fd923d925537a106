#include "support/files.hpp"
#include "support/manifests.hpp"
#include "support/whole_package.hpp"

#include <algorithm>

namespace zu {

using test::dumpOf;
using test::wholePackage;

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
    test::expectGolden(dumpOf(wholePackage()), "whole_package.txt");
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
    out << wholePackage();
    const std::string text = buffer.str();
    EXPECT_EQ(buffer.flushes, std::count(text.begin(), text.end(), '\n'));
}

TEST(PackageDump, FlagsAreOneOrZeroWhateverTheFormatOfTheStream)
{
    std::ostringstream out;
    out << std::boolalpha << std::showpos << std::hex << std::showbase << wholePackage() << BehaviorInfo();
    EXPECT_EQ(out.str(), dumpOf(wholePackage()) + dumpOf(BehaviorInfo()));
}

TEST(PackageDump, LeavesErrorsInTheStream)
{
    std::ostringstream out;
    out.setstate(std::ios::badbit);
    out << wholePackage();
    EXPECT_TRUE(out.bad());
    EXPECT_EQ(out.str(), "");
}

} // namespace zu
