#include "records/package_info_p.hpp"
#include "records/private_record.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zu {

TEST(PackageLanguages, RemovingALanguageTakesEveryOccurrence)
{
    PackageInfo package;
    // As through doors other than the adders, which keep each language once.
    PrivateRecord::of(package).supportedLanguages = {"en", "fr", "en"};
    PrivateRecord::of(package).descriptionLanguages = {"fr", "en", "fr"};
    package.removeSupportedLanguage("en");
    package.removeDescriptionLanguage("fr");
    EXPECT_THAT(package.supportedLanguages(), testing::ElementsAre("fr"));
    EXPECT_THAT(package.descriptionLanguages(), testing::ElementsAre("en"));
}

} // namespace zu
