#include "readable_name.hpp"

#include <zu/type_info.hpp>

#include <cstring>

namespace zu {

std::string TypeInfo::name() const { return detail::readableName(m_index.pretty_name()); }

bool TypeInfo::isAnonymous() const noexcept { return std::strstr(m_index.raw_name(), "_GLOBAL__N_1") != nullptr; }

} // namespace zu
