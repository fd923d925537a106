// Reads a document in a process of its own, and does with it what a caller may do; or checks it.
// usage: zupackage_read_document text|file|check main|small PATH CPU_SECONDS MEMORY_MIB
//   small: on a thread with a stack of 512 KiB
//   MEMORY_MIB: that the whole process may have taken in the end, libraries and stacks included; 0 for as much as
//   there is
#include <zupackage/authoring/check.hpp>
#include <zupackage/package_info2.hpp>
#include <zupackage/vxvalue.hpp>

#include <zu/log.hpp>

#include <fstream>
#include <functional>
#include <iostream>
#include <iterator>
#include <limits>
#include <pthread.h>
#include <sstream>
#include <string_view>
#include <sys/resource.h>

namespace {

constexpr std::size_t k_addressesBesideMebibytes = 192;

void limit(decltype(RLIMIT_CPU) resource, rlim_t most)
{
    const rlimit limits{most, most};
    setrlimit(resource, &limits);
}

std::string contentOf(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// Prints, writes, encodes and copies the package.
void use(zu::PackageInfo& package)
{
    std::ofstream("/dev/null") << package;
    package.saveToManifestContent();
    VX::VXValue value;
    package.toVXValue(value);
    const zu::PackageInfo copy(package);
}

/// @return what became of it: "read" or "checked", or the words of the failure.
std::string outcome(const std::string& form, const std::string& path)
{
    if (form == "check") {
        zu::authoring::check(zu::authoring::SourceDocument::parse(contentOf(path)));
        return "checked";
    }
    std::string words;
    zu::log::addHandler([&words](const zu::log::Record& record) {
        // The words stand behind a whole document, which may have any words in it.
        const std::string message(
            record.message.substr(record.message.size() - std::min<std::size_t>(200, record.message.size())));
        const std::size_t place = message.rfind(", column ");
        words = place == std::string::npos ? message : message.substr(message.find(": ", place) + 2);
    });
    zu::PackageInfo package;
    if (!(form == "text" ? package.loadFromManifestContent(contentOf(path)) : package.loadFromManifestFile(path)))
        return words;
    use(package);
    if (form == "file")
        zu::loadManifest(path);
    return "read";
}

/// What the process held at most, in MiB; 0 when the system does not tell. What getrusage() tells includes what its
/// parent held when it started it.
std::size_t peakMebibytes()
{
    constexpr std::string_view k_peak = "VmHWM:";
    std::ifstream status("/proc/self/status");
    std::string word;
    std::size_t kibibytes = 0;
    while (status >> word)
        if (word == k_peak)
            status >> kibibytes;
    return kibibytes / 1024;
}

void* callOnThread(void* function)
{
    (*static_cast<std::function<void()>*>(function))();
    return nullptr;
}

void runOnSmallStack(std::function<void()> function)
{
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    pthread_attr_setstacksize(&attributes, 512 * 1024);
    pthread_t thread{};
    pthread_create(&thread, &attributes, &callOnThread, &function);
    pthread_join(thread, nullptr);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 6)
        return 2;
    limit(RLIMIT_CPU, std::stoul(argv[4]));
    const std::size_t allowed = std::stoul(argv[5]);
    // What has no end must not take the machine along. Address space is more than memory: that of libraries, of the
    // arenas of threads.
    if (allowed > 0)
        limit(RLIMIT_AS, (allowed + k_addressesBesideMebibytes) * 1024 * 1024);
    zu::log::removeHandler(zu::log::k_defaultHandler);
    const auto read = [&] { std::cout << outcome(argv[1], argv[3]) << '\n'; };
    if (std::string(argv[2]) == "small")
        runOnSmallStack(read);
    else
        read();
    if (const std::size_t taken = peakMebibytes(); allowed > 0 && (taken == 0 || taken > allowed)) {
        std::cerr << "took " << taken << " MiB of " << allowed << '\n';
        return 1;
    }
    return 0;
}
