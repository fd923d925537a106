#include "support/files.hpp"
#include "support/program.hpp"
#include "support/texts.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

namespace zu {

using test::ProgramResult;
using test::replaced;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

const std::string k_base = "<package version=\"1\">\r\n"
                           "  <!-- kept -->\r\n"
                           "  <names>\r\n"
                           "    <name lang=\"en\">A</name>\r\n"
                           "  </names>\r\n"
                           "</package>\r\n";

class MergeCommand : public testing::Test
{
protected:
    ProgramResult merge(const std::string& base, const std::string& ours, const std::string& theirs,
                        std::vector<std::string> options = {}, const test::ProgramSetting& setting = {}) const
    {
        options.insert(options.begin(), {"merge", folder.file("base.xml", base), folder.file("ours.xml", ours),
                                         folder.file("theirs.xml", theirs)});
        return test::runProgram(ZUPACKAGE_PROGRAM, options, setting);
    }

    std::string file(const std::string& name) const { return (folder.path() / name).string(); }

    test::TemporaryFolder folder;
};

} // namespace

TEST_F(MergeCommand, WritesOursWithTheirChanges)
{
    const ProgramResult result = merge(k_base, replaced(k_base, "<name lang=\"en\">A", "<name  lang='en' >B"),
                                       replaced(k_base, "version=\"1\"", "version=\"2\""));
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output,
              replaced(replaced(k_base, "<name lang=\"en\">A", "<name  lang='en' >B"), "\"1\"", "\"2\""));
    EXPECT_THAT(result.errors, IsEmpty());
}

TEST_F(MergeCommand, WritesToAFileThatMayBeOurs)
{
    const std::string theirs = replaced(k_base, "version=\"1\"", "version=\"2\"");
    EXPECT_EQ(merge(k_base, k_base, theirs, {"-o", file("ours.xml")}).exitCode, 0);
    EXPECT_EQ(test::readFile(file("ours.xml")), theirs);
    EXPECT_EQ(merge(k_base, k_base, theirs, {"--output", file("new.xml")}).exitCode, 0);
    EXPECT_EQ(test::readFile(file("new.xml")), theirs);
}

TEST_F(MergeCommand, ConflictsAreMarkedInTheLinesOfTheEntry)
{
    const ProgramResult result = merge(k_base, replaced(k_base, ">A<", ">B<"), replaced(k_base, ">A<", ">C<"),
                                       {"--marker-size", "3", "-L", "mine", "-L", "yours"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.output, replaced(k_base, "    <name lang=\"en\">A</name>\r\n",
                                      "<<< mine\r\n    <name lang=\"en\">B</name>\r\n"
                                      "===\r\n    <name lang=\"en\">C</name>\r\n>>> yours\r\n"));
    EXPECT_EQ(result.errors, "zupackage: both sides changed names/name[@lang='en']\n");
}

TEST_F(MergeCommand, AnEntryThatOneSideRemovedIsMarkedAgainstNothing)
{
    const std::string line = "    <name lang=\"en\">A</name>\r\n";
    const ProgramResult result = merge(k_base, replaced(k_base, line, ""), replaced(k_base, ">A<", ">C<"));
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(
        result.output,
        replaced(k_base, line, "<<<<<<< ours\r\n=======\r\n    <name lang=\"en\">C</name>\r\n>>>>>>> theirs\r\n"));
}

TEST_F(MergeCommand, MarksHaveTheEncodingOfTheDocument)
{
    const auto utf16 = [](const std::string& text) {
        std::string bytes = "\xFE\xFF";
        for (const char c : text)
            bytes += std::string(1, '\0') + c;
        return bytes;
    };
    const ProgramResult result =
        merge(utf16("<p version='1'/>\n"), utf16("<p version='2'/>\n"), utf16("<p version='3'/>\n"));
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.output, utf16("<<<<<<< ours\n<p version='2'/>\n=======\n<p version='3'/>\n>>>>>>> theirs\n"));
}

TEST_F(MergeCommand, LinesThatMakeNoManifestAreAllThereInAnyEncoding)
{
    // Ours begins a comment, which has no end in the lines of theirs.
    const std::string begin = "<?xml version='1.0' encoding='ISO-8859-1'?>\n<p>\n";
    const std::string end = "<c name='\xE9'/>\n</p>\n";
    const ProgramResult result =
        merge(begin + "<<<<<<< a\n<y/>\n<a/>\n<x/>\n<b/>\n" + end, begin + "<y/>\n<!--\n<x/>\n-->\n" + end,
              begin + "<y/>\n<a/>\n<x/>\n<b v='2'/>\n" + end);
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(result.output,
              begin + "<y/>\n<!--\n<x/>\n<<<<<<< ours\n-->\n=======\n<b v='2'/>\n>>>>>>> theirs\n" + end);
}

TEST_F(MergeCommand, LabelsOfAnyBytesMakeMarks)
{
    const std::string declaration = "<?xml version='1.0' encoding='ISO-8859-1'?>\n";
    const auto inVersion = [&](const std::string& version) { return declaration + "<p version='" + version + "'/>\n"; };
    merge(inVersion("1"), inVersion("2"), inVersion("3"));
    const ProgramResult result = test::runProgram(
        "/bin/sh", {"-c", "cd \"$1\" && \"$0\" merge base.xml ours.xml theirs.xml -L \"$(printf 'a\\377')\"",
                    ZUPACKAGE_PROGRAM, folder.path().string()});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.output, HasSubstr("<<<<<<< a&#65533;\n"));
}

TEST_F(MergeCommand, AByteOrderMarkStandsInTheFirstLineOfEachSideSoThatMarksBeginTheirs)
{
    const std::string mark = "\xEF\xBB\xBF";
    const ProgramResult result =
        merge(mark + "<p version='1'/>\n", mark + "<p version='2'/>\n", mark + "<p version='3'/>\n");
    EXPECT_EQ(result.output,
              "<<<<<<< ours\n" + mark + "<p version='2'/>\n=======\n" + mark + "<p version='3'/>\n>>>>>>> theirs\n");
}

TEST_F(MergeCommand, WhatTheyChangedBesideThePackageComesAlongByLines)
{
    const std::string web = "  <contents>\r\n    <webContent path=\"site\"/>\r\n  </contents>\r\n</package>";
    const std::string ours = replaced(k_base, "<name lang=\"en\">A", "<name  lang='en' >B");
    const std::string theirs =
        replaced(replaced(k_base, "kept", "changed"), "</package>", "  <!-- pages -->\r\n" + web);
    const ProgramResult result = merge(k_base, ours, theirs);
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, replaced(theirs, "<name lang=\"en\">A", "<name  lang='en' >B"));
    EXPECT_THAT(result.errors, IsEmpty());
}

TEST_F(MergeCommand, WhatTheyChangedBesideThePackageComesAlongWithConflictsElsewhere)
{
    const std::string theirs = replaced(replaced(k_base, "kept", "changed"), ">A<", ">C<");
    const ProgramResult result = merge(k_base, replaced(k_base, ">A<", ">B<"), theirs);
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.output, replaced(theirs, "    <name lang=\"en\">C</name>\r\n",
                                      "<<<<<<< ours\r\n    <name lang=\"en\">B</name>\r\n=======\r\n"
                                      "    <name lang=\"en\">C</name>\r\n>>>>>>> theirs\r\n"));
    EXPECT_EQ(result.errors, "zupackage: both sides changed names/name[@lang='en']\n");
}

TEST_F(MergeCommand, WhatTheyChangedBesideThePackageAndCannotComeAlongIsAConflict)
{
    const std::string ours = replaced(k_base, "kept", "ours");
    const ProgramResult result = merge(k_base, ours, replaced(k_base, "kept", "theirs"));
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.output, ours);
    EXPECT_EQ(result.errors, "zupackage: " + file("theirs.xml") + " adds, and the merge lacks: <!-- theirs -->\n");
    EXPECT_THAT(
        merge(k_base, replaced(k_base, "  <!-- kept", "\t<!-- kept"), replaced(k_base, "<!-- kept -->", "")).errors,
        testing::EndsWith(" removes, and the merge keeps: <!-- kept -->\n"));
}

TEST_F(MergeCommand, CommentsOnWhatBothAddInOnePlaceComeAlong)
{
    const std::string french = "    <name lang=\"fr\">C</name>\r\n";
    const std::string japanese = "    <!-- polite -->\r\n    <name lang=\"ja\">D</name>\r\n";
    const auto with = [](const std::string& lines) { return replaced(k_base, "  </names>", lines + "  </names>"); };
    const ProgramResult result = merge(k_base, with(french), with(japanese));
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, with(french + japanese));
}

TEST_F(MergeCommand, NothingStandsTwiceBecauseLinesAreMerged)
{
    const std::string name = "    <name lang=\"fr\">C</name>\r\n";
    const std::string ours = replaced(k_base, "    <name lang", name + "    <name lang");
    const std::string theirs = replaced(replaced(k_base, "kept", "changed"), "  </names>", name + "  </names>");
    const ProgramResult result = merge(k_base, ours, theirs);
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.output, ours);
}

TEST_F(MergeCommand, MessagesCallTheManifestByTheNameThatIsGiven)
{
    EXPECT_EQ(merge("<p/>", "<p/>", "<p>", {"--name=a/manifest.xml"}).errors,
              "zupackage: cannot read a/manifest.xml (theirs): line 1, column 4: unexpected end of file\n");
    EXPECT_EQ(merge("<p version='1'/>", "<p version='2'/>", "<p version='3'/>", {"--name=a/manifest.xml"}).errors,
              "zupackage: a/manifest.xml: both sides changed @version\n");
}

TEST_F(MergeCommand, LinesAreMergedWhenTheBaseCannotBeRead)
{
    const std::string base = "<<<<<<< ours\n<p version='0'>\n=======\n<p version='1'>\n>>>>>>> theirs\n\n</p>\n";
    const ProgramResult result = merge(base, "<p version='2'>\n\n</p>\n", "<p version='3'>\n\n<!-- a -->\n</p>\n");
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(result.output, "<<<<<<< ours\n<p version='2'>\n=======\n<p version='3'>\n>>>>>>> theirs\n\n"
                             "<!-- a -->\n</p>\n");
    EXPECT_THAT(result.errors, HasSubstr("zupackage: cannot read " + file("base.xml") + ": line 1, column "));
}

TEST_F(MergeCommand, WhatCannotBeReadLeavesTheOutputAsItIs)
{
    const std::string output = folder.file("out.xml", "as it is");
    const std::pair<std::string, std::string> sides[] = {{"<p>", "<p/>"}, {"<p/>", "<p>"}, {"<p/>", ""}, {"", "<p/>"}};
    for (const auto& [ours, theirs] : sides) {
        const ProgramResult result = merge("<p/>", ours, theirs, {"-o", output});
        EXPECT_EQ(result.exitCode, 3) << ours;
        EXPECT_THAT(result.errors, HasSubstr("zupackage: cannot read " + folder.path().string()));
        EXPECT_EQ(test::readFile(output), "as it is");
    }
}

TEST_F(MergeCommand, OursThatOnlyALenientReaderReadsCannotBeEdited)
{
    const ProgramResult result = merge("<p/>", "<p version='1' version='2'/>", "<p author='A'/>");
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_THAT(result.errors, HasSubstr("zupackage: cannot edit " + file("ours.xml") + ": line 1, column 16: "));
}

TEST_F(MergeCommand, OutputThatCannotBeWrittenIsWorseThanConflicts)
{
    EXPECT_EQ(merge("<p version='1'/>", "<p version='2'/>", "<p version='3'/>", {}, {{}, "/dev/full", {}}).exitCode, 5);
    EXPECT_EQ(merge("<p/>", "<p/>", "<p version='3'/>", {"-o", file("absent/out.xml")}).exitCode, 5);
}

TEST_F(MergeCommand, WrongUsageIsSaid)
{
    for (const std::vector<std::string>& options :
         {std::vector<std::string>{"--marker-size", "0"}, {"--marker-size", "x"}, {"-L", "a", "-L", "b", "-L", "c"}})
        EXPECT_EQ(merge("<p/>", "<p/>", "<p/>", options).exitCode, 2) << options[1];
    EXPECT_EQ(test::runProgram(ZUPACKAGE_PROGRAM, {"merge", "-", "-", "-"}).exitCode, 2);
    EXPECT_EQ(test::runProgram(ZUPACKAGE_PROGRAM, {"merge", "a", "b"}).exitCode, 2);
}

} // namespace zu
