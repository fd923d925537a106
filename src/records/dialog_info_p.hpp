#pragma once

#include <zupackage/dialog_info.hpp>

namespace zu {

struct DialogInfoPrivate
{
    std::string topicName;
    std::string typeVersion;
    std::map<std::string, std::string> topics;
};

} // namespace zu
