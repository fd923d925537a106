#include "findings.hpp"

#include "limits.hpp"

#include <algorithm>

namespace zupackage::authoring {

void Findings::add(zu::authoring::SyntaxErrorKind kind, std::string message, TextSpan where)
{
    if (m_findings.size() < limits::k_errors)
        addLast(kind, std::move(message), where);
}

void Findings::addLast(zu::authoring::SyntaxErrorKind kind, std::string message, TextSpan where)
{
    m_findings.push_back({kind, std::move(message), where});
}

std::vector<zu::authoring::SyntaxError> Findings::errorsOf(const zu::authoring::SourceTree& tree)
{
    std::stable_sort(m_findings.begin(), m_findings.end(),
                     [](const Finding& left, const Finding& right) { return left.where.begin < right.where.begin; });
    std::vector<zu::authoring::SyntaxError> errors;
    errors.reserve(m_findings.size());
    for (Finding& finding : m_findings)
        errors.push_back({finding.kind, std::move(finding.message), tree.range(finding.where),
                          tree.places.place(finding.where.begin, tree.utf8())});
    return errors;
}

} // namespace zupackage::authoring
