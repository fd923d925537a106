#include "new/skeleton.hpp"

namespace zu::cli {

namespace {

void addBehavior(const SkeletonWish& wish, Skeleton& skeleton)
{
    BehaviorInfo behavior;
    behavior.setPath("behaviors/" + wish.slug);
    behavior.setNature(BehaviorInfo::natureInteractive());
    behavior.setUserRequestable(true);
    for (const std::string& language : wish.languages) {
        behavior.setName(wish.name, language);
        behavior.addTriggerSentence(wish.name, language);
    }
    skeleton.package.addBehavior(behavior);
    skeleton.files.push_back({behavior.path() + "/main.steps", "", false});
}

void addDialog(const SkeletonWish& wish, Skeleton& skeleton)
{
    DialogInfo dialog;
    dialog.setTopicName(wish.slug);
    for (const std::string& language : wish.languages) {
        const std::string path = "topics/" + wish.slug + "." + language + ".talk";
        dialog.setTopic(language, path);
        skeleton.files.push_back({path, "", false});
    }
    skeleton.package.addDialog(dialog);
}

void addLanguages(const SkeletonWish& wish, Skeleton& skeleton)
{
    for (const std::string& locale : wish.languages) {
        LanguageInfo language;
        language.setPath("languages/" + locale);
        language.setEngineName(wish.slug);
        language.setEngineVersion("1.0");
        language.setLocale(locale);
        for (const std::string& lang : wish.languages)
            language.setName(wish.name, lang);
        skeleton.package.addLanguage(language);
        skeleton.files.push_back({language.path() + "/lexicon.txt", "", false});
    }
}

/// A service, and the behavior that needs it: a package without contents brings nothing.
void addService(const SkeletonWish& wish, Skeleton& skeleton)
{
    addBehavior(wish, skeleton);
    PackageService service;
    service.name = wish.slug;
    service.execStart = "bin/" + wish.slug;
    service.autoRun = true;
    skeleton.package.addService(service);
    skeleton.package.addExecutableFile(service.execStart);
    skeleton.files.push_back({service.execStart, "#!/bin/sh\n", true});
}

struct SkeletonKind
{
    const char* name;
    void (*add)(const SkeletonWish& wish, Skeleton& skeleton);
};

constexpr SkeletonKind k_skeletonKinds[] = {
    {"behavior", addBehavior}, {"dialog", addDialog}, {"language", addLanguages}, {"service", addService}};

} // namespace

const std::vector<std::string>& skeletonKinds()
{
    static const std::vector<std::string> names = [] {
        std::vector<std::string> all;
        for (const SkeletonKind& kind : k_skeletonKinds)
            all.emplace_back(kind.name);
        return all;
    }();
    return names;
}

void makeSkeleton(const SkeletonWish& wish, Skeleton& skeleton)
{
    skeleton.package.setUuid(wish.uuid);
    skeleton.package.setVersion("0.1.0");
    skeleton.package.setTypeVersion("1.0");
    for (const std::string& language : wish.languages) {
        skeleton.package.setName(wish.name, language);
        skeleton.package.setDescription(wish.description, language);
        skeleton.package.addSupportedLanguage(language);
        skeleton.package.addDescriptionLanguage(language);
    }
    for (const SkeletonKind& kind : k_skeletonKinds) {
        if (wish.kind == kind.name)
            kind.add(wish, skeleton);
    }
}

std::string slugOf(const std::string& name)
{
    std::string slug;
    for (const char c : name) {
        const char lowered = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
        const bool isPlain = (lowered >= 'a' && lowered <= 'z') || (lowered >= '0' && lowered <= '9');
        if (isPlain)
            slug += lowered;
        else if (!slug.empty() && slug.back() != '-')
            slug += '-';
    }
    while (!slug.empty() && slug.back() == '-')
        slug.pop_back();
    return slug.empty() ? "package" : slug;
}

} // namespace zu::cli
