#include "package/entry_alignment.hpp"
#include "package/entry_steps.hpp"

#include <zupackage/authoring/package_difference.hpp>

namespace zupackage::authoring {

namespace {

using zu::authoring::ChangeKind;
using zu::authoring::PackageChange;

class Differences
{
public:
    /// @param path that of both elements; empty for the root
    void compare(const PackageElement& before, const PackageElement& after, const std::string& path)
    {
        if (before == after)
            return;
        for (std::size_t i = 0; i < after.attributes.size(); ++i)
            compareTexts(before.attributes[i], after.attributes[i],
                         pathTo(path, "@" + std::string(after.entry->attributes[i].name)));
        compareTexts(before.text, after.text, path);
        compareChildren(before, after, path);
    }

    std::vector<PackageChange> take() { return std::move(m_changes); }

private:
    void compareTexts(const std::string& before, const std::string& after, const std::string& path)
    {
        if (before == after)
            return;
        const ChangeKind kind = before.empty()  ? ChangeKind::Added
                                : after.empty() ? ChangeKind::Removed
                                                : ChangeKind::Changed;
        m_changes.push_back({path, kind, before, after, false});
    }

    void compareChildren(const PackageElement& before, const PackageElement& after, const std::string& path)
    {
        const std::vector<std::string> stepsBefore = stepsOf(before.children);
        const std::vector<std::string> stepsAfter = stepsOf(after.children);
        for (const AlignedEntry& aligned : align(before.children, after.children)) {
            const PackageElement* const old = aligned.before ? &before.children[*aligned.before] : nullptr;
            const PackageElement* const now = aligned.after ? &after.children[*aligned.after] : nullptr;
            const std::string place =
                pathTo(path, aligned.after ? stepsAfter[*aligned.after] : stepsBefore[*aligned.before]);
            if (aligned.isMoved)
                m_changes.push_back({place, ChangeKind::Moved, describe(*old), describe(*now), isComposite(*now)});
            const ElementEntry& entry = now ? *now->entry : *old->entry;
            if ((old && now) || isPart(entry)) {
                const PackageElement nothing(entry);
                compare(old ? *old : nothing, now ? *now : nothing, place);
            } else if (now) {
                m_changes.push_back({place, ChangeKind::Added, {}, describe(*now), isComposite(*now)});
            } else {
                m_changes.push_back({place, ChangeKind::Removed, describe(*old), {}, isComposite(*old)});
            }
        }
    }

    std::vector<PackageChange> m_changes;
};

} // namespace

} // namespace zupackage::authoring

namespace zu::authoring {

std::string_view nameOf(ChangeKind kind)
{
    switch (kind) {
    case ChangeKind::Added:
        return "added";
    case ChangeKind::Removed:
        return "removed";
    case ChangeKind::Changed:
        return "changed";
    case ChangeKind::Moved:
        return "moved";
    }
    return "";
}

std::vector<PackageChange> differences(const PackageInfo& before, const PackageInfo& after)
{
    using namespace zupackage::authoring;
    Differences result;
    result.compare(elementOf(before), elementOf(after), {});
    return result.take();
}

} // namespace zu::authoring
