#include <zupackage/authoring/check.hpp>

#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

namespace zu::authoring {

namespace {

constexpr std::size_t k_threads = 8;

/// A manifest with as many findings as there are numbers below it, each found on its own line.
std::string faultyManifest(std::size_t number)
{
    std::string entries;
    for (std::size_t i = 0; i < number; ++i)
        entries += "<thing lang='xx'/>\n";
    return "<package>\n<names>" + entries + "</names></package>";
}

std::vector<std::string> wordsOf(const SourceDocument& document)
{
    std::vector<std::string> words;
    for (const Diagnostic& finding : check(document).findings)
        words.push_back(finding.rule + ": " + finding.message + finding.range.path);
    return words;
}

template <typename Function>
void onEachThread(Function function)
{
    std::atomic<bool> start{false};
    std::vector<std::thread> threads;
    for (std::size_t i = 0; i < k_threads; ++i)
        threads.emplace_back([&, i] {
            while (!start)
                std::this_thread::yield();
            function(i);
        });
    start = true;
    for (std::thread& thread : threads)
        thread.join();
}

} // namespace

// CTest starts each test in a process of its own: the threads race for the first use of vocabulary, rules and codes.
TEST(CheckThreads, CheckDifferentDocumentsAtOnceFromAColdStart)
{
    std::vector<std::vector<std::string>> found(k_threads);
    onEachThread([&](std::size_t i) { found[i] = wordsOf(SourceDocument::parse(faultyManifest(i))); });
    for (std::size_t i = 0; i < k_threads; ++i)
        EXPECT_EQ(found[i], wordsOf(SourceDocument::parse(faultyManifest(i))));
}

TEST(CheckThreads, CheckOneDocumentAtOnce)
{
    const SourceDocument document = SourceDocument::parse(faultyManifest(20));
    std::vector<std::vector<std::string>> found(k_threads);
    onEachThread([&](std::size_t i) { found[i] = wordsOf(document); });
    for (std::size_t i = 0; i < k_threads; ++i)
        EXPECT_EQ(found[i], wordsOf(document));
}

} // namespace zu::authoring
