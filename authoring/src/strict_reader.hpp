#pragma once

#include "entities.hpp"

#include <QtCore/QXmlStreamReader>

#include <optional>
#include <string>
#include <string_view>

namespace zupackage::authoring {

/// What QXmlStreamReader says of a document that has a document type.
class StrictReader
{
public:
    struct Failure
    {
        std::string message;
        std::size_t at; ///< in the text, behind what was read
    };

    /// @param utf8 the text, without a byte order mark.
    explicit StrictReader(std::string_view utf8);

    /// Reads up to the end of the document type.
    std::optional<Failure> readDocumentType();
    /// The entities that it declares.
    void declare(Entities& entities) const;
    /// Reads to the end of the document.
    std::optional<Failure> readRest();

private:
    std::optional<Failure> failure() const;

    std::string_view m_utf8;
    QXmlStreamReader m_reader;
};

} // namespace zupackage::authoring
