#pragma once

#include "check/outline.hpp"
#include "check/package_folder.hpp"

#include <zupackage/authoring/check.hpp>
#include <zupackage/authoring/rule.hpp>

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zupackage::check {

using zu::authoring::ByteRange;
using zu::authoring::TextEdit;

/// What a rule may look at.
struct Checked
{
    const SourceDocument& document;
    const Outline& outline;
    const std::optional<PackageFolder>& folder; ///< of the package; nothing when there is none to look at
};

/// A finding as its rule makes it, before its places are known in lines and paths.
struct Finding
{
    const zu::authoring::Rule* rule = nullptr;
    ByteRange range;
    SourceNode node;       ///< the element, or the owner of the attribute, that it is about; may be null
    std::string attribute; ///< the name of the attribute that it is about; empty for none
    std::string message;
    std::vector<std::pair<std::string, SourceNode>> related;
    std::optional<zu::authoring::Fix> fix;

    /// Points at another element, and says why.
    Finding& see(std::string why, SourceNode other);

    /// A fix that leaves the package as it reads, or makes of it what was plainly meant.
    Finding& safeFix(std::string title, std::vector<TextEdit> edits);

    /// A fix that drops or renames something.
    Finding& unsafeFix(std::string title, std::vector<TextEdit> edits);
};

/// Collects what rules find, each up to a limit.
class Findings
{
public:
    explicit Findings(std::size_t limitPerRule) : m_limitPerRule(limitPerRule) {}

    /// What follows is found by this rule.
    void beginRule(const zu::authoring::Rule& rule);

    /// About an element: its start tag is what the finding shows.
    Finding& at(SourceNode element, std::string message);

    /// About what an element, a comment or a text says: all of it is what the finding shows.
    Finding& atWhole(SourceNode node, std::string message);

    /// About what an element holds: its content is what the finding shows, or its start tag when that is empty.
    Finding& atContent(SourceNode element, std::string message);

    /// About an attribute: its value is what the finding shows, or all of it when that is empty.
    Finding& at(SourceAttribute attribute, std::string message);

    /// About an attribute's name.
    Finding& atName(SourceAttribute attribute, std::string message);

    /// About bytes, in a node that may be null.
    Finding& at(ByteRange range, SourceNode node, std::string message);

    /// Whether the rule has found as much as it may, so that it need not go on.
    bool isFull() const { return m_found.size() - m_foundBefore >= m_limitPerRule; }

    /// Counts a finding that there is no room for, so that its words need not be made.
    /// @return false while there is room: the finding has to be told then.
    bool omit();

    std::vector<Finding>& found() { return m_found; }
    std::size_t omitted() const { return m_omitted; }

private:
    std::size_t m_limitPerRule;
    std::size_t m_foundBefore = 0; ///< by other rules
    const zu::authoring::Rule* m_rule = nullptr;
    std::vector<Finding> m_found;
    std::size_t m_omitted = 0;
    Finding m_discarded;
};

/// A rule with the function that finds what it is about.
struct RuleRow
{
    zu::authoring::Rule rule;
    void (*find)(const Checked& checked, Findings& findings);
};

/// The rules by what they look at, each group in the order of its table.
const std::vector<RuleRow>& documentRules();
const std::vector<RuleRow>& vocabularyRules();
const std::vector<RuleRow>& completenessRules();
const std::vector<RuleRow>& valueRules();
const std::vector<RuleRow>& textRules();
const std::vector<RuleRow>& sectionRules();
const std::vector<RuleRow>& repetitionRules();
const std::vector<RuleRow>& languageRules();
const std::vector<RuleRow>& translationRules();
const std::vector<RuleRow>& fileRules();

/// All of them.
const std::vector<const RuleRow*>& allRules();

} // namespace zupackage::check
