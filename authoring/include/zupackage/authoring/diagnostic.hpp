#pragma once

#include <zupackage/authoring/place.hpp>
#include <zupackage/authoring/text_edit.hpp>

#include <optional>
#include <string>
#include <vector>

namespace zu::authoring {

/// How much a finding matters, the least first.
enum class Severity
{
    Pedantic, ///< a matter of style
    Info,     ///< worth knowing
    Warning,  ///< probably not what the author wants
    Error     ///< certainly not, or refused by somebody
};

/// A stretch of a document, as people, editors and machines name it.
struct SourceRange
{
    ByteRange bytes;  ///< for machines, which count from 0
    Place begin;      ///< that of the first character
    Place end;        ///< that of the first character after it
    std::string path; ///< of the element or attribute, in XPath notation; empty where the stretch belongs to none
};

/// Another place that a finding speaks of.
struct RelatedPlace
{
    std::string message; ///< what it has to do with the finding
    SourceRange range;   ///< where it is
};

/// How a machine can remove what was found.
struct Fix
{
    std::string title; ///< what it does, as an order: "remove the repeated permission"
    /// Safe fixes leave the package as the reader has it, or make of it what the author plainly meant (the rule's
    /// explanation says which). The others drop something that only its author can judge.
    bool isSafe = false;
    std::vector<TextEdit> edits; ///< in the order of their ranges
};

/// One finding of a check.
struct Diagnostic
{
    std::string rule;                    ///< the id of the rule that found it
    Severity severity = Severity::Error; ///< as the options of the check have it
    std::string message;                 ///< without a place and a full stop
    SourceRange range;                   ///< what is to be underlined
    std::vector<RelatedPlace> related; ///< such as the first of two entries that are the same; most findings have none
    std::optional<Fix> fix;            ///< none when only the author can tell what to write
};

} // namespace zu::authoring
