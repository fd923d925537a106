#include "support/log_capture.hpp"

#include <zu/log.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <future>
#include <memory>
#include <stdexcept>
#include <thread>
#include <vector>

namespace zu {

using log::Level;

namespace {

const log::Origin k_here{"src/somewhere", "zu::somewhere", 7};

/// Added before main() runs, as libraries do.
log::Category& g_early = log::addCategory("test.early");

/// Taken away before main() runs: these tests write thousands of records.
const bool g_defaultWasThere = log::removeHandler(log::k_defaultHandler);

} // namespace

TEST(LogLevel, NumbersAreFixed)
{
    const std::pair<Level, int> levels[] = {{Level::Silent, 0},  {Level::Fatal, 1}, {Level::Error, 2},
                                            {Level::Warning, 3}, {Level::Info, 4},  {Level::Verbose, 5},
                                            {Level::Debug, 6}};
    for (const auto& [level, number] : levels)
        EXPECT_EQ(static_cast<int>(level), number) << log::levelName(level);
}

TEST(LogLevel, NameOfANumberThatIsNoLevelIsEmpty)
{
    EXPECT_EQ(log::levelName(Level::Warning), "warning");
    EXPECT_EQ(log::levelName(static_cast<Level>(7)), "");
}

TEST(LogCategory, AddingTwiceGivesTheSameObject)
{
    EXPECT_EQ(&log::addCategory("test.same"), &log::addCategory("test.same"));
    EXPECT_NE(&log::addCategory("test.same"), &log::addCategory("test.other"));
    EXPECT_EQ(log::addCategory("test.same").name(), "test.same");
}

TEST(LogCategory, AHandleMadeDuringStaticInitialisationStaysValid)
{
    EXPECT_EQ(&g_early, &log::addCategory("test.early"));
}

TEST(LogCategory, AddingFromManyThreadsGivesOneCategory)
{
    std::vector<log::Category*> seen(8);
    std::vector<std::thread> threads;
    threads.reserve(seen.size());
    for (auto& slot : seen)
        threads.emplace_back([&slot] { slot = &log::addCategory("test.raced"); });
    for (auto& thread : threads)
        thread.join();
    EXPECT_THAT(seen, testing::Each(seen.front()));
}

TEST(LogCategory, ThresholdLetsGraverLevelsThroughAndStartsAtInfo)
{
    log::Category& category = log::addCategory("test.threshold");
    EXPECT_EQ(category.threshold(), Level::Info);
    EXPECT_TRUE(category.lets(Level::Info));
    EXPECT_FALSE(category.lets(Level::Verbose));
    category.setThreshold(Level::Error);
    EXPECT_TRUE(category.lets(Level::Fatal));
    EXPECT_FALSE(category.lets(Level::Warning));
}

TEST(LogCategory, SilentThresholdLetsNothingThroughAndSilentRecordsNeverPass)
{
    log::Category& category = log::addCategory("test.silent");
    EXPECT_FALSE(category.lets(Level::Silent));
    category.setThreshold(Level::Silent);
    EXPECT_FALSE(category.lets(Level::Fatal));
    EXPECT_FALSE(category.lets(Level::Silent));
}

TEST(LogWrite, GivesTheWholeRecordToEveryHandler)
{
    const Capture first;
    const Capture second;
    log::write(log::addCategory("test.whole"), Level::Warning, k_here, "message");
    const Captured expected{Level::Warning, "test.whole", "message", "src/somewhere", "zu::somewhere", 7};
    EXPECT_THAT(first.records, testing::ElementsAre(expected));
    EXPECT_THAT(second.records, testing::ElementsAre(expected));
}

TEST(LogWrite, ByNameReachesTheCategoryOfThatName)
{
    const Capture capture;
    log::addCategory("test.byname").setThreshold(Level::Error);
    log::write("test.byname", Level::Warning, k_here, "held back");
    log::write("test.byname", Level::Error, k_here, "passed");
    ASSERT_EQ(capture.records.size(), 1u);
    EXPECT_EQ(std::get<2>(capture.records[0]), "passed");
}

TEST(LogWrite, ComposesTheMessageOnlyWhenTheLevelPasses)
{
    const Capture capture;
    int composed = 0;
    const auto compose = [&composed] { return "composed " + std::to_string(++composed); };
    log::Category& category = log::addCategory("test.lazy");
    log::write(category, Level::Debug, k_here, compose);
    log::write("test.lazy", Level::Debug, k_here, compose);
    EXPECT_EQ(composed, 0);
    log::write(category, Level::Error, k_here, compose);
    log::write("test.lazy", Level::Error, k_here, compose);
    ASSERT_EQ(capture.records.size(), 2u);
    EXPECT_EQ(std::get<2>(capture.records[1]), "composed 2");
}

TEST(LogWrite, WhatComposingThrowsReachesTheCallerAndNothingIsWritten)
{
    const Capture capture;
    const auto fail = []() -> std::string { throw std::runtime_error("no message"); };
    EXPECT_THROW(log::write("test.throw", Level::Error, k_here, fail), std::runtime_error);
    EXPECT_TRUE(capture.records.empty());
}

TEST(LogHandler, TheDefaultHandlerIsThereFromTheStartAndCanBeRemoved)
{
    EXPECT_TRUE(g_defaultWasThere);
    EXPECT_FALSE(log::removeHandler(log::k_defaultHandler));
}

TEST(LogHandler, ARemovedHandlerIsNotCalledAndIsGone)
{
    int calls = 0;
    const auto id = log::addHandler([&calls](const log::Record&) { ++calls; });
    EXPECT_TRUE(log::removeHandler(id));
    log::write("test.removed", Level::Error, k_here, "to nobody");
    EXPECT_EQ(calls, 0);
    EXPECT_FALSE(log::removeHandler(id));
}

TEST(LogHandler, WhatAHandlerThrowsStopsNeitherTheCallerNorTheNextHandler)
{
    const auto throwing = log::addHandler([](const log::Record&) { throw std::runtime_error("broken handler"); });
    const Capture capture;
    EXPECT_NO_THROW(log::write("test.broken", Level::Error, k_here, "message"));
    EXPECT_EQ(capture.records.size(), 1u);
    log::removeHandler(throwing);
}

TEST(LogHandler, AnEmptyHandlerDoesNothing)
{
    const auto id = log::addHandler({});
    EXPECT_NO_THROW(log::write("test.empty", Level::Error, k_here, "message"));
    EXPECT_TRUE(log::removeHandler(id));
}

TEST(LogHandler, AHandlerMayRemoveItselfAndWriteRecords)
{
    const Capture capture;
    log::HandlerId id{};
    id = log::addHandler([&id](const log::Record&) {
        if (log::removeHandler(id))
            log::write("test.nested", Level::Error, k_here, "from the handler");
    });
    log::write("test.nested", Level::Error, k_here, "first");
    log::write("test.nested", Level::Error, k_here, "second");
    EXPECT_EQ(capture.records.size(), 3u);
}

TEST(LogHandler, RemovingWaitsForACallOnAnotherThread)
{
    std::promise<void> entered;
    std::promise<void> release;
    const auto id = log::addHandler([&](const log::Record&) {
        entered.set_value();
        release.get_future().wait();
    });
    std::thread writer([] { log::write("test.slow", Level::Error, k_here, "message"); });
    entered.get_future().wait();
    auto removed = std::async(std::launch::async, [id] { return log::removeHandler(id); });
    EXPECT_EQ(removed.wait_for(std::chrono::milliseconds(50)), std::future_status::timeout);
    release.set_value();
    EXPECT_TRUE(removed.get());
    writer.join();
}

TEST(LogHandler, HandlersThatWriteRecordsDoNotBlockEachOther)
{
    const auto echo = [](const log::Record& record) {
        if (record.category == "test.outer")
            log::write("test.inner", Level::Error, k_here, "from a handler");
    };
    const auto first = log::addHandler(echo);
    const auto second = log::addHandler(echo);
    std::atomic<int> inner{0};
    const auto count =
        log::addHandler([&inner](const log::Record& record) { inner += record.category == "test.inner"; });
    std::vector<std::thread> writers;
    for (int i = 0; i < 4; ++i)
        writers.emplace_back([] {
            for (int round = 0; round < 500; ++round)
                log::write("test.outer", Level::Error, k_here, "message");
        });
    for (auto& writer : writers)
        writer.join();
    for (const auto id : {first, second, count})
        log::removeHandler(id);
    EXPECT_EQ(inner, 4 * 500 * 2);
}

TEST(LogHandler, HandlersComeAndGoWhileOtherThreadsWrite)
{
    std::atomic<bool> stop{false};
    std::atomic<int> written{0};
    std::vector<std::thread> writers;
    writers.reserve(3);
    for (int i = 0; i < 3; ++i)
        writers.emplace_back([&stop, &written] {
            while (!stop) {
                log::write("test.busy", Level::Error, k_here, "message");
                ++written;
            }
        });
    while (written < 100)
        std::this_thread::yield();
    for (int i = 0; i < 200; ++i) {
        // What the handler writes to ends with the iteration: a call after removal would be a use after scope.
        auto calls = std::make_unique<int>(0);
        const auto id = log::addHandler([&calls](const log::Record&) { ++*calls; });
        for (const int before = written; written < before + 10;)
            std::this_thread::yield();
        log::removeHandler(id);
        EXPECT_GT(*calls, 0);
    }
    stop = true;
    for (auto& writer : writers)
        writer.join();
}

} // namespace zu
