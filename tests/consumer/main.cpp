#include <zupackage/authoring/source_document.hpp>
#include <zupackage/authoring/text_edit.hpp>
#include <zupackage/behavior_info.hpp>
#include <zupackage/dialog_info.hpp>
#include <zupackage/language_info.hpp>
#include <zupackage/package_info.hpp>
#include <zupackage/package_info2.hpp>
#include <zupackage/vxvalue.hpp>

#include <zu/log.hpp>

#include <iostream>

int main(int argc, char** argv)
{
    zu::log::addCategory("zupackage").setThreshold(zu::log::Level::Silent);
    zu::PackageInfo package;
    if (argc != 2 || package.loadFromManifestContent("<") || !package.loadFromManifestFile(argv[1]))
        return 1;
    const auto document = zu::authoring::SourceDocument::parse("<package/>");
    if (zu::authoring::applyEdits(document, {{{8, 8}, " uuid='u'"}}) != "<package uuid='u'/>")
        return 1;
    std::cout << package.uuid() << '\n';
    return 0;
}
