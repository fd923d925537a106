// What fails for want of memory says so, and leaves everything as it was.
#include "allocation/failing_allocation.hpp"

#include <zupackage/authoring/check.hpp>
#include <zupackage/authoring/formatting.hpp>
#include <zupackage/authoring/manifest_editor.hpp>
#include <zupackage/authoring/package_merge.hpp>
#include <zupackage/authoring/path_edit.hpp>
#include <zupackage/package_info.hpp>

#include <gtest/gtest.h>

#include <cstring>
#include <dlfcn.h>

namespace zu::authoring {

namespace {

const std::string k_manifestOfLongTexts =
    "<package uuid='some.package.with.a.long.name' version='1.0'>\n"
    "  <!-- a comment that is longer than a short string -->\n"
    "  <names><name lang='en'>A name that is longer than a short string</name></names>\n"
    "  <contents>\n"
    "    <behaviorContent path='a/long/path/to/some/behavior'>\n"
    "      <triggerSentences><sentence lang='en'>A sentence &amp; more of it</sentence></triggerSentences>\n"
    "    </behaviorContent>\n"
    "    <behaviorContent path='b'/>\n"
    "  </contents>\n"
    "</package>\n";

PackageInfo packageIn(const std::string& manifest)
{
    PackageInfo package;
    readManifest(manifest, package);
    return package;
}

/// One with changes of each kind.
PackageInfo changedPackage()
{
    PackageInfo package = packageIn(k_manifestOfLongTexts);
    package.setVersion("2.0");
    package.setName("Un nom plus long qu'une petite chaîne", "fr");
    package.behaviors().pop_back();
    package.behaviors().front().setNature("interactive");
    package.addExecutableFile("a/long/path/to/an/executable/file");
    return package;
}

/// Qt does not claim to get along without memory.
bool isNotOfQt(const void* caller)
{
    Dl_info library = {};
    return dladdr(caller, &library) == 0 || !library.dli_fname || !std::strstr(library.dli_fname, "libQt5");
}

/// Does `work`, which either gives its result or fails, and gives it after it has failed: its input is as it was.
template <class Work>
void expectResultOrFailure(Work work)
{
    const auto expected = work();
    auto result = expected;
    const std::size_t failed = withEachAllocationFailing(
        [] {}, [&] { result = work(); }, [&](bool done) { ASSERT_EQ(done ? result : work(), expected); }, &isNotOfQt);
    EXPECT_GT(failed, 0u);
}

} // namespace

TEST(AuthoringAllocationFailure, AnUpdateOfAManifestIsMadeAsAWholeOrNotAtAll)
{
    const ManifestEditor untouched(SourceDocument::parse(k_manifestOfLongTexts));
    const PackageInfo target = changedPackage();
    ManifestEditor expected = untouched;
    expected.update(target);
    ManifestEditor editor = untouched;
    withEachAllocationFailing([&] { editor = untouched; }, [&] { editor.update(target); },
                              [&](bool done) {
                                  const ManifestEditor& as = done ? expected : untouched;
                                  ASSERT_EQ(editor.document().text(), as.document().text());
                                  ASSERT_EQ(editor.package().saveToManifestContent(),
                                            as.package().saveToManifestContent());
                              },
                              &isNotOfQt);
    // What failed stands in nobody's way.
    editor = untouched;
    EXPECT_ANY_THROW({
        const FailingAllocation failing(100, &isNotOfQt);
        editor.update(target);
    });
    editor.update(target);
    EXPECT_EQ(editor.document().text(), expected.document().text());
}

TEST(AuthoringAllocationFailure, EditsByPathAreMadeOrFail)
{
    const SourceDocument document = SourceDocument::parse(k_manifestOfLongTexts);
    const std::vector<PathEdit> edits = {
        SetText{ManifestPath("names/name[@lang='fr']"), "Un nom plus long qu'une petite chaîne"},
        AddEntry{ManifestPath("services/service"),
                 {{ManifestPath("@name"), "a service"}, {ManifestPath("@execStart"), "/a/long/path/to/some/program"}}},
        Remove{ManifestPath("contents/behaviorContent[2]")}};
    expectResultOrFailure([&] { return edited(document, edits).text(); });
}

TEST(AuthoringAllocationFailure, DocumentsAreCheckedAndFormattedOrFail)
{
    expectResultOrFailure([] { return SourceDocument::parse(k_manifestOfLongTexts).text(); });
    const SourceDocument document = SourceDocument::parse(k_manifestOfLongTexts);
    expectResultOrFailure([&] { return check(document).findings.size(); });
    expectResultOrFailure([&] { return formatted(document); });
}

TEST(AuthoringAllocationFailure, ManifestsAreMergedOrFail)
{
    const std::string theirs = changedPackage().saveToManifestContent();
    expectResultOrFailure([&] { return mergeManifests(k_manifestOfLongTexts, k_manifestOfLongTexts, theirs).ours; });
}

} // namespace zu::authoring
