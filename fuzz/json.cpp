// Any bytes, as JSON: what is no package is refused in words of ours, and what is one comes back from the JSON that is
// written of it.
#include "target.hpp"

#include <zupackage/authoring/package_json.hpp>

namespace {

void refusesInOwnWords(const zu::authoring::PackageJsonError& error)
{
    fuzz::require(error.place().line > 0 && error.place().column > 0, "a refusal has no place");
    fuzz::require(error.reason().find("json.exception") == std::string::npos, "the parser speaks: " + error.reason());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::string json;
    try {
        json = toJson(zu::packageFromJson(fuzz::textOf(data, size)));
    } catch (const zu::authoring::PackageJsonError& error) {
        refusesInOwnWords(error);
        return 0;
    }
    fuzz::require(toJson(zu::packageFromJson(json)) == json, "reads otherwise: " + json);
    return 0;
}
