#include "manifest/manifest_document.hpp"

#include <QtCore/QFile>

namespace zupackage {

std::optional<xml::Tree> documentFrom(xml::ParseResult result, const std::string& source, const FailurePolicy& policy)
{
    if (auto* tree = std::get_if<xml::Tree>(&result))
        return std::move(*tree);
    policy.fail(policy.syntaxError(source, std::get<xml::ParseFailure>(result)));
    return {};
}

std::optional<xml::Tree> documentIn(QFile& file, const std::string& source, const FailurePolicy& policy)
{
    if (!file.open(QIODevice::ReadOnly)) {
        policy.fail(policy.openFailure(source));
        return {};
    }
    xml::ParseResult result = xml::parse(file);
    file.close();
    return documentFrom(std::move(result), source, policy);
}

} // namespace zupackage
