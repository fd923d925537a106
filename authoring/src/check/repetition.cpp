#include "check/repetition.hpp"

#include "edits.hpp"

namespace zupackage::check {

void reportPair(const Checked& checked, Findings& findings, SourceNode earlier, SourceNode later, Fate fate,
                const std::string& what)
{
    switch (fate) {
    case Fate::FirstCounts:
        findings.at(later, what + "; the first one counts")
            .see("the first one", earlier)
            .safeFix("remove it", {authoring::removal(checked.document, later)});
        break;
    case Fate::LastCounts:
        findings.at(earlier, what + "; the last one counts")
            .see("a later one", later)
            .safeFix("remove it", {authoring::removal(checked.document, earlier)});
        break;
    case Fate::BothCount:
        findings.at(later, what)
            .see("the first one", earlier)
            .unsafeFix("remove it", {authoring::removal(checked.document, later)});
        break;
    }
}

} // namespace zupackage::check
