#pragma once

#include "records/field.hpp"

#include <zupackage/dialog_info.hpp>

namespace zupackage::xml {
class Node;
}

namespace zu {

struct DialogInfoPrivate
{
    /// Reads a "dialogContent" element, see DialogInfo. True, always.
    bool loadFromManifest(zupackage::xml::Node element);

    std::string topicName;
    std::string typeVersion;
    std::map<std::string, std::string> topics;
};

} // namespace zu

namespace zupackage {

template <>
inline constexpr auto
    k_fields<zu::DialogInfoPrivate> = std::tuple(field("topicName", &zu::DialogInfoPrivate::topicName),
                                                 field("typeVersion", &zu::DialogInfoPrivate::typeVersion),
                                                 field("topics", &zu::DialogInfoPrivate::topics));

} // namespace zupackage
