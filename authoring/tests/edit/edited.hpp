#pragma once

#include <zupackage/authoring/manifest_editor.hpp>
#include <zupackage/package_info.hpp>

#include <functional>
#include <string>

namespace zu::authoring {

using Change = std::function<void(PackageInfo&)>;

/// The text after a change of the package that it reads as.
inline std::string edited(const std::string& text, const Change& change)
{
    ManifestEditor editor(SourceDocument::parse(text));
    PackageInfo package = editor.package();
    change(package);
    editor.update(package);
    return editor.document().text();
}

} // namespace zu::authoring
