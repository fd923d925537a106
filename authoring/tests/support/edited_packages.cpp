#include "support/edited_packages.hpp"

#include "support/generated_packages.hpp"

#include <functional>
#include <iterator>

namespace zu::test {

namespace {

int anyNumber(int count) { return *rc::gen::resize(rc::kNominalSize, rc::gen::inRange(0, count)); }

std::string anyOf(const std::vector<std::string>& texts)
{
    return texts[static_cast<std::size_t>(anyNumber(static_cast<int>(texts.size())))];
}

std::string anyLanguage() { return anyOf({"en", "fr", "de", ""}); }
std::string anyName() { return anyOf({"a", "b", "c", "it's", "'\"", "<&>"}); }
std::string anyText() { return anyOf({"one", "two", " three\r\n", "]]>", ""}); }

template <class List>
typename List::iterator anyIn(List& list)
{
    return std::next(list.begin(), anyNumber(static_cast<int>(list.size())));
}

template <class List>
void moveOrRemoveAny(List& list)
{
    if (list.empty())
        return;
    const auto entry = anyIn(list);
    if (anyNumber(2) == 0)
        list.erase(entry);
    else
        list.splice(anyNumber(2) == 0 ? list.begin() : list.end(), list, entry);
}

BehaviorInfo anyBehaviorAtSomePath()
{
    BehaviorInfo behavior;
    behavior.setPath(anyName());
    behavior.setNature(anyText());
    return behavior;
}

void editBehavior(BehaviorInfo& behavior)
{
    const std::vector<std::function<void()>> edits = {
        [&] { behavior.setNature(anyText()); },
        [&] { behavior.setUserRequestable(anyNumber(2) == 0); },
        [&] { behavior.setName(anyText(), anyLanguage()); },
        [&] { behavior.setDescription(anyText(), anyLanguage()); },
        [&] { behavior.insertTag(anyText(), anyLanguage(), anyNumber(3)); },
        [&] { behavior.removeTag(anyText(), anyLanguage()); },
        [&] { behavior.updateTag(anyText(), anyText(), anyLanguage()); },
        [&] { behavior.insertTriggerSentence(anyText(), anyLanguage(), anyNumber(3)); },
        [&] { behavior.addLoadingResponse(anyText(), anyLanguage()); },
        [&] { behavior.insertCondition(anyText(), anyName(), anyNumber(3)); },
        [&] {
            behavior.addPermission(anyOf({"canStandUp", "canSitDown", "canRunOnPod"}));
        },
        [&] {
            behavior.removePermission(anyOf({"canStandUp", "canSitDown", "canRunOnPod"}));
        }};
    edits[static_cast<std::size_t>(anyNumber(static_cast<int>(edits.size())))]();
}

DialogInfo anyDialog()
{
    DialogInfo dialog;
    dialog.setTopicName(anyName());
    dialog.setTypeVersion(anyText());
    dialog.setTopic(anyLanguage(), anyName());
    return dialog;
}

LanguageInfo anySpeechLanguage()
{
    LanguageInfo language;
    language.setPath(anyName());
    language.setEngineName(anyText());
    language.setLocale(anyLanguage());
    language.setName(anyText(), anyLanguage());
    return language;
}

PackageService anyService() { return {anyText(), anyName(), anyNumber(2) == 0, {{anyName(), anyText()}}}; }

void editLanguages(PackageInfo& package)
{
    const std::vector<std::function<void()>> edits = {[&] { package.setName(anyText(), anyLanguage()); },
                                                      [&] { package.setDescription(anyText(), anyLanguage()); },
                                                      [&] { package.addSupportedLanguage(anyLanguage()); },
                                                      [&] { package.removeSupportedLanguage(anyLanguage()); },
                                                      [&] { package.addDescriptionLanguage(anyLanguage()); },
                                                      [&] { package.addLanguage(anySpeechLanguage()); },
                                                      [&] { package.addDialog(anyDialog()); },
                                                      [&] { package.clearNames(); }};
    edits[static_cast<std::size_t>(anyNumber(static_cast<int>(edits.size())))]();
}

void editSomething(PackageInfo& package)
{
    const std::vector<std::function<void()>> edits = {
        [&] { package.setVersion(anyText()); },
        [&] { package.setInstallOnlyAtStartup(anyNumber(2) == 0); },
        [&] { editLanguages(package); },
        [&] { editLanguages(package); },
        [&] { package.addBehavior(anyBehaviorAtSomePath()); },
        [&] { moveOrRemoveAny(package.behaviors()); },
        [&] {
            for (int count = package.hasBehavior() ? 4 : 0; count > 0; --count)
                editBehavior(*anyIn(package.behaviors()));
        },
        [&] {
            package.addRobotRequirement({anyName(), anyText(), {}, {}, anyText()});
        },
        [&] {
            package.addMorvoRequirement({anyText(), anyText()});
        },
        [&] { moveOrRemoveAny(package.robotRequirements()); },
        [&] { moveOrRemoveAny(package.morvoRequirements()); },
        [&] { package.addService(anyService()); },
        [&] { package.addExecutableFile(anyName()); }};
    edits[static_cast<std::size_t>(anyNumber(static_cast<int>(edits.size())))]();
}

} // namespace

void editAnything(PackageInfo& package, int most)
{
    for (int edits = anyNumber(most); edits > 0; --edits)
        editSomething(package);
}

PackageInfo anySmallPackage()
{
    PackageInfo package;
    editAnything(package, 12);
    return package;
}

std::string asManifestsCarry(const PackageInfo& package)
{
    PackageInfo read;
    const bool isRead = readManifest(PackageInfo(package).saveToManifestContent(), read);
    return isRead ? describe(read) : "unreadable";
}

} // namespace zu::test
