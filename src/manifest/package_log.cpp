#include "manifest/package_log.hpp"

namespace zu {

log::Category& packageInfoCategory()
{
    static log::Category& category = log::addCategory("zu.package.info");
    return category;
}

namespace {

// Whoever lists the categories or sets their thresholds finds this one before the first manifest is read.
[[maybe_unused]] const log::Category& g_addedAtLoad = packageInfoCategory();

} // namespace

} // namespace zu
