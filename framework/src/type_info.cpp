#include <zu/type_info.hpp>

#include <cstring>

namespace zu {

std::string TypeInfo::name() const
{
    static const std::string k_long = of<std::string>().index().pretty_name();
    static const std::string k_short = "std::string";
    std::string name = m_index.pretty_name();
    for (auto at = name.find(k_long); at != std::string::npos; at = name.find(k_long, at + k_short.size()))
        name.replace(at, k_long.size(), k_short);
    return name;
}

bool TypeInfo::isAnonymous() const noexcept { return std::strstr(m_index.raw_name(), "_GLOBAL__N_1") != nullptr; }

} // namespace zu
