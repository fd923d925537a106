#include "package/element_merge.hpp"

#include "package/entry_steps.hpp"
#include "package/merged_entries.hpp"

namespace zupackage::authoring {

namespace {

using zu::authoring::MergeConflict;

/// Puts elements together, and collects the conflicts.
class Merger
{
public:
    /// Fills `mergedOurs` and `mergedTheirs`, elements that hold nothing yet.
    void merge(const PackageElement& base, const PackageElement& ours, const PackageElement& theirs,
               PackageElement& mergedOurs, PackageElement& mergedTheirs, const std::string& path)
    {
        for (std::size_t i = 0; i < base.attributes.size(); ++i)
            mergeTexts(base.attributes[i], ours.attributes[i], theirs.attributes[i], mergedOurs.attributes[i],
                       mergedTheirs.attributes[i], pathTo(path, "@" + std::string(base.entry->attributes[i].name)));
        mergeTexts(base.text, ours.text, theirs.text, mergedOurs.text, mergedTheirs.text, path);
        mergeChildren(base, ours, theirs, mergedOurs, mergedTheirs, path);
    }

    std::vector<MergeConflict> takeConflicts() { return std::move(m_conflicts); }

private:
    void mergeTexts(const std::string& base, const std::string& ours, const std::string& theirs,
                    std::string& mergedOurs, std::string& mergedTheirs, const std::string& path)
    {
        const bool isConflict = ours != theirs && ours != base && theirs != base;
        if (isConflict)
            m_conflicts.push_back({path, base, ours, theirs});
        mergedOurs = ours == base ? theirs : ours;
        mergedTheirs = isConflict ? theirs : mergedOurs;
    }

    void mergeChildren(const PackageElement& base, const PackageElement& ours, const PackageElement& theirs,
                       PackageElement& mergedOurs, PackageElement& mergedTheirs, const std::string& path)
    {
        const std::vector<std::string> baseSteps = stepsOf(base.children);
        const std::vector<std::string> ourSteps = stepsOf(ours.children);
        const std::vector<std::string> theirSteps = stepsOf(theirs.children);
        const auto child = [](const PackageElement& parent, std::optional<std::size_t> place) {
            return place ? &parent.children[*place] : nullptr;
        };
        for (const MergedEntry& entry : mergedEntries(base.children, ours.children, theirs.children)) {
            const std::string& step = entry.ours   ? ourSteps[*entry.ours]
                                      : entry.base ? baseSteps[*entry.base]
                                                   : theirSteps[*entry.theirs];
            mergeEntry(child(base, entry.base), child(ours, entry.ours), child(theirs, entry.theirs), mergedOurs,
                       mergedTheirs, pathTo(path, step));
        }
    }

    /// Adds the merge of an entry, which may be null on each side, to the children of the merged parents.
    void mergeEntry(const PackageElement* base, const PackageElement* ours, const PackageElement* theirs,
                    PackageElement& parentOfOurs, PackageElement& parentOfTheirs, const std::string& path)
    {
        const ElementEntry& entry = *(ours ? ours : theirs)->entry;
        if (!isPart(entry) && (!ours || !theirs)) {
            keepOrRemove(base, ours, theirs, parentOfOurs, parentOfTheirs, path);
            return;
        }
        const PackageElement nothing(entry);
        PackageElement mergedOurs(entry);
        PackageElement mergedTheirs(entry);
        merge(base ? *base : nothing, ours ? *ours : nothing, theirs ? *theirs : nothing, mergedOurs, mergedTheirs,
              path);
        if (!isEmptyPart(mergedOurs))
            parentOfOurs.children.push_back(std::move(mergedOurs));
        if (!isEmptyPart(mergedTheirs))
            parentOfTheirs.children.push_back(std::move(mergedTheirs));
    }

    /// The entry is on one side alone: it is new there, or the other side has removed it.
    void keepOrRemove(const PackageElement* base, const PackageElement* ours, const PackageElement* theirs,
                      PackageElement& parentOfOurs, PackageElement& parentOfTheirs, const std::string& path)
    {
        const PackageElement& kept = ours ? *ours : *theirs;
        if (base && *base == kept)
            return;
        if (base)
            m_conflicts.push_back({path, describe(*base), ours ? describe(*ours) : std::string(),
                                   theirs ? describe(*theirs) : std::string()});
        if (ours || !base)
            parentOfOurs.children.push_back(kept);
        if (theirs || !base)
            parentOfTheirs.children.push_back(kept);
    }

    std::vector<MergeConflict> m_conflicts;
};

} // namespace

MergedElement mergeElements(const PackageElement& base, const PackageElement& ours, const PackageElement& theirs)
{
    MergedElement merged{PackageElement(*base.entry), PackageElement(*base.entry), {}};
    Merger merger;
    merger.merge(base, ours, theirs, merged.ours, merged.theirs, {});
    merged.conflicts = merger.takeConflicts();
    return merged;
}

} // namespace zupackage::authoring
