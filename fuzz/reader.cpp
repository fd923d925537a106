// Any bytes, read as a text and as a file: as QDomDocument has them, or refused.
#include "support/dom_reader.hpp"
#include "support/files.hpp"
#include "target.hpp"

#include <zupackage/package_info.hpp>

#include <zu/log.hpp>

#include <algorithm>
#include <iterator>

namespace {

/// Whether a limit is the reason; what goes beyond one may take QDomDocument minutes.
bool namesALimit(std::string_view message)
{
    // Before it stands the document.
    const std::string_view words = message.substr(message.size() - std::min<std::size_t>(message.size(), 120));
    const std::string_view limits[] = {"deeper than 256 levels", "expand to more than 8 MiB",
                                       "steps of comparing names", "nodes and attributes of more"};
    return std::any_of(std::begin(limits), std::end(limits),
                       [words](std::string_view limit) { return words.find(limit) != std::string_view::npos; });
}

/// @return whether the document is within the limits.
bool isWithinLimits(const std::string& bytes)
{
    static const zu::test::TemporaryFolder folder;
    bool isWithin = true;
    const zu::log::HandlerId handler = zu::log::addHandler(
        [&isWithin](const zu::log::Record& record) { isWithin = isWithin && !namesALimit(record.message); });
    zu::PackageInfo().loadFromManifestContent(bytes);
    zu::PackageInfo().loadFromManifestFile(folder.file("manifest.xml", bytes));
    zu::log::removeHandler(handler);
    return isWithin;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    zu::log::removeHandler(zu::log::k_defaultHandler);
    const std::string bytes(fuzz::textOf(data, size));
    if (isWithinLimits(bytes)) {
        const std::string difference = zu::test::differenceFromDom(bytes);
        fuzz::require(difference.empty(), difference);
    }
    return 0;
}
