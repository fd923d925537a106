#include <zu/log.hpp>

#include <gtest/gtest.h>

namespace zu {

using log::Level;

namespace {

std::string standardErrorOf(Level level, std::string_view message)
{
    testing::internal::CaptureStderr();
    log::standardErrorHandler()(log::Record{level, "test.output", message, {"file", "function", 1}});
    return testing::internal::GetCapturedStderr();
}

} // namespace

TEST(LogOutput, WritesLevelCategoryAndMessageAsOneLine)
{
    EXPECT_EQ(standardErrorOf(Level::Warning, "it happened"), "[warning] test.output: it happened\n");
    EXPECT_EQ(standardErrorOf(Level::Debug, ""), "[debug] test.output: \n");
}

TEST(LogOutput, ControlCharactersAreEscapedAndTextIsNot)
{
    EXPECT_EQ(standardErrorOf(Level::Error, "a\nb\r\x1b[31m\tc\x7f {} %d é"),
              "[error] test.output: a\\nb\\r\\x1b[31m\tc\\x7f {} %d é\n");
}

TEST(LogOutput, NothingGoesToStandardOutput)
{
    testing::internal::CaptureStdout();
    standardErrorOf(Level::Error, "message");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

} // namespace zu
