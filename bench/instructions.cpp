// One operation on a package, for `instructions`, which counts those of measuredCode().
#include "json_package.hpp"
#include "manifest_file.hpp"
#include "printed_texts.hpp"

#include <zupackage/package_info2.hpp>

#include <zu/any_value.hpp>

#include <QtCore/QFile>
#include <QtXml/QDomDocument>

#include <cstdlib>
#include <functional>
#include <iostream>
#include <map>
#include <memory>
#include <sstream>

extern "C" [[gnu::noinline]] void measuredCode(const std::function<void()>& code) { code(); }

namespace {

using Operation = std::function<void()>;

std::shared_ptr<bench::ManifestFile> manifestFile(zu::PackageInfo& package)
{
    return std::make_shared<bench::ManifestFile>(package.saveToManifestContent());
}

/// Copies the value and destroys the copy.
template <class T>
void copy(const T& value)
{
    static_cast<void>(T(value));
}

void parseFile(const QString& name)
{
    QFile file(name);
    file.open(QIODevice::ReadOnly);
    QDomDocument().setContent(&file);
}

/// What each operation is called, and what makes it ready for a package.
const std::map<std::string, Operation (*)(zu::PackageInfo&)> k_operations = {
    {"toVXValue", [](auto& package) -> Operation { return [&package] { bench::encoded(package); }; }},
    {"decode",
     [](auto& package) -> Operation { return [value = bench::encoded(package)] { zu::PackageInfo decoded(value); }; }},
    {"read from json",
     [](auto& package) -> Operation { return [value = bench::jsonOf(package)] { bench::packageFrom(value); }; }},
    {"loadFromManifestContent",
     [](auto& package) -> Operation {
         return [text = package.saveToManifestContent()] { zu::PackageInfo().loadFromManifestContent(text); };
     }},
    {"loadFromManifestFile",
     [](auto& package) -> Operation {
         return [file = manifestFile(package)] { zu::PackageInfo().loadFromManifestFile(file->name().toStdString()); };
     }},
    {"loadManifest",
     [](auto& package) -> Operation {
         return [file = manifestFile(package)] { zu::loadManifest(file->name().toStdString()); };
     }},
    {"parse text",
     [](auto& package) -> Operation {
         return [text = package.saveToManifestContent()] {
             QDomDocument().setContent(QString::fromStdString(text), true);
         };
     }},
    {"parse file",
     [](auto& package) -> Operation { return [file = manifestFile(package)] { parseFile(file->name()); }; }},
    {"saveToManifestContent",
     [](auto& package) -> Operation { return [&package] { package.saveToManifestContent(); }; }},
    {"QDomDocument::toString",
     [](auto& package) -> Operation {
         QDomDocument document;
         document.setContent(QByteArray::fromStdString(package.saveToManifestContent()));
         return [document] { document.toString(1); };
     }},
    {"print", [](auto& package) -> Operation { return [&package] { std::ostringstream() << package; }; }},
    {"append texts",
     [](auto& package) -> Operation { return [texts = bench::PrintedTexts(package)] { texts.appended(); }; }},
    {"copy", [](auto& package) -> Operation { return [&package] { copy(package); }; }},
    {"copy in AnyValue",
     [](auto& package) -> Operation { return [value = zu::AnyValue::from(package)] { copy(value); }; }},
    {"copy containers",
     [](auto& package) -> Operation { return [containers = bench::bare(package)] { copy(containers); }; }},
};

} // namespace

int main(int argc, char** argv)
{
    const auto operation = k_operations.find(argc == 3 ? argv[1] : "");
    if (operation == k_operations.end()) {
        std::cerr << "usage: " << argv[0] << " OPERATION BEHAVIORS\noperations:\n";
        for (const auto& [name, prepare] : k_operations)
            std::cerr << "  " << name << '\n';
        return 2;
    }
    // What the first call alone does, binding symbols for the most part, is not the operation's.
    zu::PackageInfo first = bench::package(1);
    operation->second(first)();
    zu::PackageInfo package = bench::package(std::atoi(argv[2]));
    measuredCode(operation->second(package));
    return 0;
}
