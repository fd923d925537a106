#include "support/captured_log.hpp"
#include "support/files.hpp"
#include "support/generated_packages.hpp"

#include <zupackage/package_info2.hpp>

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace zu {

namespace {

constexpr int k_threads = 8;
constexpr int k_readsEach = 20;

/// A manifest that has something of every kind, and its number in each text.
std::string numberedManifest(int number)
{
    const std::string n = std::to_string(number);
    return "<package uuid='" + n + "'><names><name lang='en'>" + n +
           "</name></names><supportedLanguages><language>en</language></supportedLanguages><contents>"
           "<behaviorContent path='" +
           n + "'><tags><tag lang='en'>" + n + "</tag></tags></behaviorContent><dialogContent topicName='" + n +
           "'/><languageContent path='" + n + "'/><webContent path='" + n +
           "'/></contents><requirements><robotRequirement model='" + n + "'/><morvoRequirement minVersion='" + n +
           "'/></requirements><services><service name='" + n + "'><envVar name='N' value='" + n +
           "'/><envVar name='N' value='again'/></service></services>"
           "<executableFiles><file path='" +
           n + "'/></executableFiles></package>";
}

/// Reads one file into both models again and again; false when they differ from each other or from `number`.
bool readsItsOwn(const std::string& path, int number)
{
    for (int i = 0; i < k_readsEach; ++i) {
        PackageInfo direct;
        if (!direct.loadFromManifestFile(path))
            return false;
        const PackageInfo2 byValue = loadManifest(path);
        if (byValue.web().path != std::to_string(number) || test::describe(byValue) != test::describe(direct) ||
            direct.behaviors().front().path() != byValue.uuid)
            return false;
    }
    return true;
}

} // namespace

// CTest starts each test in a process of its own: the threads race for the first use of every type.
TEST(PackageThreads, ReadDifferentFilesAtOnceFromAColdStart)
{
    const test::CapturedLog log;
    const test::TemporaryFolder folder;
    std::vector<std::string> paths;
    for (int i = 0; i < k_threads; ++i)
        paths.push_back(folder.file(std::to_string(i) + ".xml", numberedManifest(i)));
    std::atomic<bool> start{false};
    std::atomic<int> succeeded{0};
    std::vector<std::thread> threads;
    for (int i = 0; i < k_threads; ++i)
        threads.emplace_back([&, i] {
            while (!start)
                std::this_thread::yield();
            succeeded += readsItsOwn(paths[static_cast<std::size_t>(i)], i) ? 1 : 0;
        });
    start = true;
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(succeeded, k_threads);
    EXPECT_EQ(log.lines().size(), 2u * k_threads * k_readsEach); // the repeated variable, in each model
}

} // namespace zu
