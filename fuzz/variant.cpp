// Any variant, decoded as a package: it throws the variant's error, or what it gives encodes, decodes and prints the
// same.
#include "support/generated_packages.hpp"
#include "variants.hpp"

#include <zupackage/package_info.hpp>

#include <sstream>

namespace {

/// The encoding of a package, some of whose values are others.
VX::VXValue mutatedEncoding(fuzz::Choices& choices)
{
    zu::PackageInfo package;
    package.setUuid("u");
    zu::BehaviorInfo behavior;
    behavior.addTag(choices.text(), "en");
    package.addBehavior(behavior);
    package.setName(choices.text(), "en");
    VX::VXValue value;
    package.toVXValue(value);
    for (int count = choices.number(4); count > 0; --count) {
        VX::VXValue* at = &value;
        for (int depth = choices.number(6); depth > 0; --depth)
            if (at->type() == VX::VXValue::Type::Array && at->size() > 0)
                at = &(*at)[choices.number(at->size() - 1)];
        *at = anyVariant(choices, 2);
    }
    return value;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::Choices choices(fuzz::textOf(data, size));
    const VX::VXValue value = choices.flag() ? anyVariant(choices, 5) : mutatedEncoding(choices);
    std::ostringstream dump;
    dump << value;
    try {
        zu::PackageInfo package(value);
        VX::VXValue encoded;
        package.toVXValue(encoded);
        zu::PackageInfo again(encoded);
        if (package.uuid().empty())
            return 0; // such a package has no encoding
        VX::VXValue encodedAgain;
        again.toVXValue(encodedAgain);
        fuzz::require(encoded == encodedAgain, "encoding again gives another variant");
    } catch (const VX::VXError&) {
        // The variant has the wrong shape.
    }
    return 0;
}
