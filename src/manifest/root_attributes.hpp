#pragma once

#include "manifest/manifest_names.hpp"

#include <string>

namespace zupackage {

/// The attributes of the document's root that are texts, in the order in which they are written, each with the field of
/// a package, of either model, that it is.
template <class Package>
struct RootAttribute
{
    std::string_view name;
    std::string Package::*field;
};

template <class Package>
inline constexpr RootAttribute<Package> k_rootAttributes[] = {
    {names::k_uuid, &Package::uuid},      {names::k_version, &Package::version},
    {names::k_author, &Package::author},  {names::k_organization, &Package::organization},
    {names::k_date, &Package::date},      {names::k_typeVersion, &Package::typeVersion},
    {names::k_channel, &Package::channel}};

} // namespace zupackage
