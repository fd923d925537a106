#pragma once

#include <zupackage/package_info.hpp>
#include <zupackage/vxvalue.hpp>

#include <string>

namespace bench {

/// A behavior as real packages have them: three languages, a few texts of every kind in each.
inline zu::BehaviorInfo behavior(int number)
{
    zu::BehaviorInfo behavior;
    behavior.setPath("behaviors/number-" + std::to_string(number));
    behavior.setNature(zu::BehaviorInfo::natureInteractive());
    behavior.setUserRequestable(true);
    for (const char* lang : {"en", "fr", "ja"}) {
        behavior.setName("The name of a behavior", lang);
        behavior.setDescription("What the behavior does, in a sentence of usual length.", lang);
        for (const char* text : {"first", "second", "third"}) {
            behavior.addTag(text, lang);
            behavior.addTriggerSentence(std::string("a sentence that starts it, the ") + text, lang);
            behavior.addLoadingResponse(std::string("what it says meanwhile, the ") + text, lang);
        }
    }
    behavior.addCondition("peopleNearby > 0 && !talking", "entertain");
    behavior.addPermission(zu::BehaviorInfo::k_permCanStandUp);
    return behavior;
}

/// A package with that many behaviors.
inline zu::PackageInfo package(int behaviors)
{
    zu::PackageInfo package;
    package.setUuid("org.example.package");
    package.setVersion("1.0");
    package.setName("Package", "en");
    for (int i = 0; i < behaviors; ++i)
        package.addBehavior(behavior(i));
    return package;
}

/// The package in its wire form.
inline VX::VXValue encoded(zu::PackageInfo& package)
{
    VX::VXValue value;
    package.toVXValue(value);
    return value;
}

} // namespace bench
