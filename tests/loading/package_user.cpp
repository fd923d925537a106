#include "package_user.hpp"

#include <zupackage/package_info2.hpp>

namespace {

std::string failureOfReading(const std::string& path)
{
    try {
        zu::loadManifest(path);
    } catch (const std::runtime_error& error) {
        return error.what();
    }
    return {};
}

FoundWhileLoading look()
{
    zu::PackageInfo package;
    package.setUuid("static");
    zu::RobotRequirement requirement;
    requirement.model = "static";
    return {zu::AnyValue::from(package), zu::AnyValue::from(requirement), zu::BehaviorInfo::k_permCanStandUp,
            failureOfReading("absent")};
}

const FoundWhileLoading g_found = look();

} // namespace

extern "C" __attribute__((visibility("default"))) const FoundWhileLoading* foundWhileLoading() { return &g_found; }
