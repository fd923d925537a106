#include "manifest/package_log.hpp"

namespace zupackage {

zu::log::Category& packageInfoCategory()
{
    static zu::log::Category& category = zu::log::addCategory("zu.package.info");
    return category;
}

namespace {

// Whoever lists the categories or sets their thresholds finds this one before the first manifest is read.
[[maybe_unused]] const zu::log::Category& g_addedAtLoad = packageInfoCategory();

} // namespace

} // namespace zupackage
