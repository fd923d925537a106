#include "strict_reader.hpp"

#include "characters.hpp"
#include "limits.hpp"

namespace zupackage::authoring {

namespace {

/// The byte at which that many UTF-16 units end.
std::size_t afterUnits(qint64 units, std::string_view utf8)
{
    std::size_t at = 0;
    while (units > 0 && at < utf8.size()) {
        const Character character = characterAt(at, utf8);
        units -= character.codePoint > 0xFFFF ? 2 : 1;
        at += character.size;
    }
    return at;
}

} // namespace

StrictReader::StrictReader(std::string_view utf8)
    : m_utf8(utf8), m_reader(QByteArray::fromRawData(utf8.data(), static_cast<int>(utf8.size())))
{
    // Text that is added has an encoding already: from here on the declared one is not asked.
    m_reader.addData(QString());
    m_reader.setEntityExpansionLimit(limits::k_parameterExpansion);
}

std::optional<StrictReader::Failure> StrictReader::readDocumentType()
{
    while (!m_reader.atEnd() && m_reader.tokenType() != QXmlStreamReader::DTD)
        m_reader.readNext();
    return failure();
}

void StrictReader::declare(Entities& entities) const
{
    for (const QXmlStreamEntityDeclaration& entity : m_reader.entityDeclarations())
        if (entity.systemId().isEmpty() && entity.publicId().isEmpty())
            entities.declare(entity.name().toString().toStdString(), entity.value().toString().toStdString());
}

std::optional<StrictReader::Failure> StrictReader::readRest()
{
    m_reader.setEntityExpansionLimit(static_cast<int>(limits::k_expandedEntitiesMiB * limits::k_bytesPerMiB));
    while (!m_reader.atEnd())
        m_reader.readNext();
    return failure();
}

std::optional<StrictReader::Failure> StrictReader::failure() const
{
    if (!m_reader.hasError())
        return std::nullopt;
    return Failure{m_reader.errorString().toStdString(), afterUnits(m_reader.characterOffset(), m_utf8)};
}

} // namespace zupackage::authoring
