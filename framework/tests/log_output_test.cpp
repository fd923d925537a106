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

TEST(LogOutput, WhatSteersATerminalBeyondAsciiIsEscaped)
{
    EXPECT_EQ(standardErrorOf(Level::Error, "\xc2\x80\xc2\x9b\xc2\x9f\xc2\xa0"),
              "[error] test.output: \\u0080\\u009b\\u009f\xc2\xa0\n");
    EXPECT_EQ(standardErrorOf(Level::Error, "\u2029\u202a\u202e\u202f\u2065\u2066\u2069\u206a"),
              "[error] test.output: \u2029\\u202a\\u202e\u202f\u2065\\u2066\\u2069\u206a\n");
}

TEST(LogOutput, BytesThatAreNoUtf8AreEscaped)
{
    EXPECT_EQ(standardErrorOf(Level::Error, "\x9b\xc0\x9b\xe0\x82\x9b|\xe2\x80"),
              "[error] test.output: \\x9b\\xc0\\x9b\\xe0\\x82\\x9b|\\xe2\\x80\n");
    EXPECT_EQ(standardErrorOf(Level::Error, "\xf0\x9f\x98\x80\xed\xa0\x80\xf5"),
              "[error] test.output: \xf0\x9f\x98\x80\\xed\\xa0\\x80\\xf5\n");
}

TEST(LogOutput, NothingGoesToStandardOutput)
{
    testing::internal::CaptureStdout();
    standardErrorOf(Level::Error, "message");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

} // namespace zu
