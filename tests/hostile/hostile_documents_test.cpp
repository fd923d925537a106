// Reads each hostile document in a process of its own, as a text and as a file, on the main thread and on a small
// stack, with no more time and memory than its size allows.
#include "hostile/hostile_documents.hpp"
#include "support/build_kind.hpp"
#include "support/files.hpp"
#include "support/program.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <sstream>
#include <sys/stat.h>
#include <unistd.h>

namespace zu {

namespace {

namespace fs = std::filesystem;
using test::k_optimised;
using test::k_sanitized;

/// Beyond it size is the point, not the way through the code.
constexpr std::uintmax_t k_manyBytes = 8 * 1024 * 1024;

/// Processor time, in seconds: one for a document of up to 1 MiB, beyond that ten times that of Qt's document. Builds
/// that do not optimise get more.
std::size_t seconds(std::uintmax_t bytes)
{
    constexpr std::uintmax_t k_MiB = 1024 * 1024;
    const std::size_t allowed = bytes <= k_MiB + 1000 ? 1 : 1 + bytes / (2 * k_MiB);
    return k_optimised ? allowed : 20 * allowed;
}

/// Memory of the whole process, in MiB: 256 for a document of up to 1 MiB, program and libraries included; beyond that
/// in proportion.
std::size_t mebibytes(std::uintmax_t bytes) { return 256 + 24 * bytes / (1024 * 1024); }

/// @param memory in MiB.
std::string read(const std::string& form, const std::string& stack, const std::string& path, std::uintmax_t bytes,
                 std::size_t memory)
{
    const test::ProgramResult result =
        test::runProgram(ZUPACKAGE_READ_DOCUMENT,
                         {form, stack, path, std::to_string(seconds(bytes)), std::to_string(k_sanitized ? 0 : memory)});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.errors, "");
    return result.output;
}

std::string read(const std::string& form, const std::string& stack, const std::string& path, std::uintmax_t bytes)
{
    return read(form, stack, path, bytes, mebibytes(bytes));
}

auto isOutcome(const std::string& outcome)
{
    return testing::AllOf(
        testing::HasSubstr(outcome), testing::EndsWith("\n"),
        testing::ResultOf([](const std::string& text) { return text == "read\n"; }, outcome == "read"));
}

/// Reads a file in all ways; one of many bytes on the small stack alone, where there is less of everything.
void expectOutcomes(const std::string& path, const std::string& asText, const std::string& asFile,
                    std::size_t memory = 0)
{
    const std::uintmax_t bytes = fs::file_size(path);
    if (memory == 0)
        memory = mebibytes(bytes);
    const auto expectBoth = [&](const std::string& stack) {
        SCOPED_TRACE(stack);
        EXPECT_THAT(read("text", stack, path, bytes, memory), isOutcome(asText));
        EXPECT_THAT(read("file", stack, path, bytes, memory), isOutcome(asFile));
    };
    expectBoth("small");
    if (bytes <= k_manyBytes) {
        expectBoth("main");
        EXPECT_EQ(read("check", "small", path, bytes), "checked\n");
    }
}

class LargeHostileDocument : public testing::TestWithParam<test::HostileDocument>
{
};

} // namespace

TEST_P(LargeHostileDocument, IsReadOrRefusedInProportion)
{
    const std::string bytes = GetParam().bytes();
    if (!k_optimised && bytes.size() > k_manyBytes)
        GTEST_SKIP() << "takes minutes in this build";
    const test::TemporaryFolder folder;
    const std::string path = folder.file("manifest.xml", bytes);
    expectOutcomes(path, GetParam().asText, GetParam().asFile, GetParam().mebibytes);
}

INSTANTIATE_TEST_SUITE_P(Each, LargeHostileDocument, testing::ValuesIn(test::largeHostileDocuments()),
                         [](const auto& row) { return row.param.name; });

// The outcomes of the small ones stand in a table beside them: name, as a text, as a file.
TEST(HostileDocument, EachSmallOneHasItsOutcome)
{
    std::ostringstream outcomes;
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(test::sourcePath("tests/hostile/documents")))
        files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    for (const fs::path& file : files) {
        const std::string asText = read("text", "main", file, 0);
        const std::string asFile = read("file", "main", file, 0);
        EXPECT_EQ(read("text", "small", file, 0), asText) << file;
        EXPECT_EQ(read("file", "small", file, 0), asFile) << file;
        EXPECT_EQ(read("check", "small", file, 0), "checked\n") << file;
        outcomes << file.stem().string() << "\n    " << asText << "    " << asFile;
    }
    test::expectGolden(outcomes.str(), "../hostile/outcomes.txt");
}

TEST(HostileDocument, WhatIsNoRegularFileIsReadAsFarAsItGoes)
{
    const test::TemporaryFolder folder;
    const auto open = [](const std::string& path) { return "Could not open " + path + " for reading\n"; };
    const std::string folderPath = folder.path().string();
    EXPECT_EQ(read("file", "main", folderPath, 0), open(folderPath));
    EXPECT_EQ(read("file", "main", folderPath + "/missing", 0), open(folderPath + "/missing"));
    EXPECT_EQ(read("file", "main", "/dev/zero", 64 * 1024 * 1024), "the document is larger than 64 MiB\n");
    EXPECT_EQ(read("file", "main", "/dev/null", 0), "unexpected end of file\n");
    const std::string unreadable = folder.file("unreadable", "<p/>");
    chmod(unreadable.c_str(), 0);
    EXPECT_EQ(read("file", "main", unreadable, 0), geteuid() == 0 ? "read\n" : open(unreadable));
}

TEST(HostileDocument, ExternalEntitiesAndDocumentTypesAreNotOpened)
{
    // Who opened it would wait for a writer for ever.
    const test::TemporaryFolder folder;
    const std::string pipe = (folder.path() / "pipe").string();
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    for (const std::string& where : {pipe, "file://" + pipe})
        for (const std::string& document :
             {"<!DOCTYPE p SYSTEM '" + where + "'><p/>", "<!DOCTYPE p [<!ENTITY e SYSTEM '" + where + "'>]><p>&e;</p>",
              "<!DOCTYPE p [<!ENTITY % e SYSTEM '" + where + "'> %e; ]><p/>"})
            expectOutcomes(folder.file("manifest.xml", document), "read", "read");
}

TEST(HostileDocument, APipeIsReadToItsEnd)
{
    const test::TemporaryFolder folder;
    const std::string pipe = (folder.path() / "pipe").string();
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    // It is read twice, into either model.
    const std::string write = "(printf '<p>'; sleep 0.1; printf '</p>') >'" + pipe + "'; ";
    ASSERT_EQ(std::system(("{ " + write + "sleep 0.1; " + write + "} &").c_str()), 0);
    EXPECT_EQ(read("file", "main", pipe, 0), "read\n");
}

} // namespace zu
