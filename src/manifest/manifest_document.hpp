#pragma once

#include "xml/document.hpp"

#include <functional>
#include <optional>
#include <string>

class QFile;

namespace zupackage {

/// How a reader of manifests reports that there is no document.
struct FailurePolicy
{
    std::string (*openFailure)(const std::string& source);
    std::string (*syntaxError)(const std::string& source, const xml::ParseFailure& failure);
    std::function<void(const std::string& message)> fail; ///< may throw
};

/// The document that was parsed.
/// @param source what was parsed, as messages name it.
/// @return nothing, after the policy has failed, when it could not be.
std::optional<xml::Tree> documentFrom(xml::ParseResult result, const std::string& source, const FailurePolicy& policy);

/// The document in a file that is not open, which is closed again whatever the outcome.
std::optional<xml::Tree> documentIn(QFile& file, const std::string& source, const FailurePolicy& policy);

} // namespace zupackage
