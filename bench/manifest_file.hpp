#pragma once

#include "sample_packages.hpp"

#include <QtCore/QTemporaryFile>

namespace bench {

/// The manifest of a package in a file, which goes with the object.
class ManifestFile
{
public:
    explicit ManifestFile(const std::string& content)
    {
        m_file.open();
        m_file.write(QByteArray::fromStdString(content));
        m_file.close();
    }

    explicit ManifestFile(int behaviors) : ManifestFile(package(behaviors).saveToManifestContent()) {}

    QString name() const { return m_file.fileName(); }

private:
    QTemporaryFile m_file;
};

} // namespace bench
