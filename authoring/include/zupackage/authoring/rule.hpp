#pragma once

#include <zupackage/authoring/diagnostic.hpp>
#include <zupackage/authoring/export.hpp>

#include <string>
#include <string_view>
#include <vector>

namespace zu::authoring {

/// Where the examples of a rule stand in a manifest.
enum class ExampleFrame
{
    Document,  ///< they are whole documents
    RootTag,   ///< they are the start tag of the root
    Languages, ///< they declare the languages of the package
    Package,   ///< they stand in the root, behind its names, descriptions, languages and contents
    Contents,  ///< they stand in the contents of a package, behind a behavior with the folder "hello"
    Behavior   ///< they stand in that behavior, behind its nature
};

/// One thing that a check looks for.
struct Rule
{
    std::string_view id;          ///< in kebab-case; never changes its meaning
    Severity severity;            ///< where nothing else is configured
    std::string_view summary;     ///< one line, without a full stop
    std::string_view explanation; ///< what happens to such a manifest, and what to write instead
    ExampleFrame frame;           ///< what manifestWith() puts around an example
    std::string_view badExample;  ///< triggers this rule, and no other
    std::string_view goodExample; ///< triggers none
    /// The files of the package that the examples belong to, parted by spaces; empty for a rule that looks at none.
    std::string_view files;
};

/// All rules, in the order in which guides list them. Never changes; any number of threads may read it.
ZUPACKAGE_AUTHORING_EXPORT const std::vector<Rule>& rules();

/// @return the rule with that id; null when there is none.
ZUPACKAGE_AUTHORING_EXPORT const Rule* findRule(std::string_view id);

/// A whole manifest with an example of the rule where it belongs.
/// @param example the rule's bad or good one.
ZUPACKAGE_AUTHORING_EXPORT std::string manifestWith(const Rule& rule, std::string_view example);

} // namespace zu::authoring
