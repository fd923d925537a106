#include "manifest_source.hpp"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <cstdio>

namespace zu::cli {

namespace {

/// Standard input as the file that the library's reader opens, reads and names in its messages.
class StandardInput : public QFile
{
public:
    QString fileName() const override { return QStringLiteral("standard input"); }
    bool open(OpenMode mode) override { return QFile::open(stdin, mode); }
};

} // namespace

bool loadManifestFrom(const std::string& source, PackageInfo& package)
{
    if (source == "-") {
        StandardInput input;
        return package.loadFromManifestFile(input);
    }
    const bool isFolder = QFileInfo(QString::fromStdString(source)).isDir();
    return package.loadFromManifestFile(isFolder ? source + "/manifest.xml" : source);
}

std::string wordsOf(const ManifestSyntaxError& error)
{
    return "line " + std::to_string(error.line) + ", column " + std::to_string(error.column) + ": " + error.message;
}

} // namespace zu::cli
