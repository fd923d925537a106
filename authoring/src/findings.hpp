#pragma once

#include "source_tree.hpp"

#include <string>
#include <vector>

namespace zupackage::authoring {

/// The errors of a document, while it is read.
class Findings
{
public:
    /// Beyond as many as are told, none is kept.
    void add(zu::authoring::SyntaxErrorKind kind, std::string message, TextSpan where);
    /// The one that ends the document is always kept.
    void addLast(zu::authoring::SyntaxErrorKind kind, std::string message, TextSpan where);

    bool areEmpty() const { return m_findings.empty(); }

    /// In the order of their places.
    std::vector<zu::authoring::SyntaxError> errorsOf(const zu::authoring::SourceTree& tree);

private:
    struct Finding
    {
        zu::authoring::SyntaxErrorKind kind;
        std::string message;
        TextSpan where;
    };

    std::vector<Finding> m_findings;
};

} // namespace zupackage::authoring
