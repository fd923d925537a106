#pragma once

#include <functional>
#include <string>
#include <vector>

namespace zu::test {

/// A document that is made to harm, or looks like it.
struct HostileDocument
{
    std::string name;
    std::function<std::string()> bytes;
    std::string asText; ///< "read", or what the words hold with which it is refused
    std::string asFile;
    std::size_t mebibytes = 0; ///< that it may take, where that is less than its size allows; else 0
};

/// Those that are too large to lie here as files.
const std::vector<HostileDocument>& largeHostileDocuments();

} // namespace zu::test
