#pragma once

#include <zupackage/authoring/diagnostic.hpp>
#include <zupackage/authoring/export.hpp>
#include <zupackage/authoring/source_document.hpp>

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace zu::authoring {

/// What a check is to do.
struct CheckOptions
{
    /// The folder of the package, in UTF-8: the rules about files look there. Without one they find nothing.
    std::optional<std::string> root;
    /// By the id of a rule, the severity of its findings; nothing switches the rule off. An id that no rule has is
    /// ignored.
    std::map<std::string, std::optional<Severity>> severities;
    /// The most findings of one rule: only documents that are no manifests have more.
    std::size_t limitPerRule = 1'000;
};

/// What a check found, sorted by place, then by rule.
struct CheckReport
{
    std::vector<Diagnostic> findings;   ///< at the severity that the options give to their rule, or else at its own
    std::vector<Diagnostic> suppressed; ///< those of rules that are switched off, at their own severity
    std::size_t omitted = 0;            ///< how many findings, at least, were above the limit of their rule
};

/// Looks in a document for everything that the reader silently accepts, changes or drops, and for everything that a
/// strict parser refuses. All rules run over any document: after an error in the text those parts are judged that the
/// parser still understood (SourceDocument::isComplete() says whether that is all of them).
///
/// Throws nothing for any document, file system or options (but std::bad_alloc). Opens no file of the package; asks the
/// file system for its entries when there is a root. Of a document that is not well-formed it asks the package
/// library's reader, which may log what it always logs. Any number of checks may run at once.
ZUPACKAGE_AUTHORING_EXPORT CheckReport check(const SourceDocument& document, const CheckOptions& options = {});

/// The text of the document after every fix of `findings` that is safe, or also those that are not.
///
/// Of fixes that touch the same text the first one is made; a second check finds what is left.
/// @param applied the indices of the findings that were fixed; may be null.
ZUPACKAGE_AUTHORING_EXPORT std::string applyFixes(const SourceDocument& document,
                                                  const std::vector<Diagnostic>& findings, bool alsoUnsafe,
                                                  std::vector<std::size_t>* applied = nullptr);

} // namespace zu::authoring
