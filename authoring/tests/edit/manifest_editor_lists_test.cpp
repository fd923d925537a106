#include "edit/edited.hpp"

#include <zupackage/package_info.hpp>

#include <gtest/gtest.h>

namespace zu::authoring {

namespace {

const std::string k_names = "<p>\n"
                            "  <names>\n"
                            "    <name lang='de'>Geschichten</name> <!-- old -->\n"
                            "\n"
                            "    <!-- since 1.2 -->\n"
                            "    <name lang='ja'>\xe7\x89\xa9\xe8\xaa\x9e</name>\n"
                            "  </names>\n"
                            "</p>\n";

const std::string k_behaviors = "<p>\n"
                                "\t<contents>\n"
                                "\t\t<!-- one -->\n"
                                "\t\t<behaviorContent path='one'><!-- 1 --><nature>a</nature></behaviorContent>\n"
                                "\t\t<behaviorContent path='two'><!-- 2 --><nature>b</nature></behaviorContent>\n"
                                "\t\t<behaviorContent path='three'><!-- 3 --><nature>c</nature></behaviorContent>\n"
                                "\t</contents>\n"
                                "</p>";

/// The text with one piece of it, which it must have, replaced.
std::string with(std::string text, const std::string& piece, const std::string& replacement)
{
    const std::size_t at = text.find(piece);
    EXPECT_NE(at, std::string::npos) << piece;
    return text.replace(at, piece.size(), replacement);
}

std::list<BehaviorInfo>::iterator second(PackageInfo& package) { return std::next(package.behaviors().begin()); }

} // namespace

TEST(ManifestEditorLists, ANewTextStandsBehindItsNeighbourInTheAlphabetAndBehindWhatIsSaidOfThat)
{
    EXPECT_EQ(edited(k_names, [](PackageInfo& p) { p.setName("Stories", "en"); }),
              with(k_names, "<!-- old -->", "<!-- old -->\n    <name lang=\"en\">Stories</name>"));
}

TEST(ManifestEditorLists, ANewFirstTextStandsBeforeTheFirst)
{
    EXPECT_EQ(edited(k_names, [](PackageInfo& p) { p.setName("Contes", "ca"); }),
              with(k_names, "<name lang='de'>", "<name lang=\"ca\">Contes</name>\n    <name lang='de'>"));
}

TEST(ManifestEditorLists, ATextThatGoesTakesItsLineWithItAndLeavesTheComments)
{
    ManifestEditor editor(SourceDocument::parse(k_names));
    PackageInfo package = editor.package();
    package.clearNames();
    package.setName("Geschichten", "de");
    editor.update(package);
    EXPECT_EQ(editor.document().text(), with(k_names, "    <name lang='ja'>\xe7\x89\xa9\xe8\xaa\x9e</name>\n", ""));
}

TEST(ManifestEditorLists, ASectionIsMadeWhereWritersPutItAndIndentedAsItsNeighbours)
{
    EXPECT_EQ(
        edited(k_names, [](PackageInfo& p) { p.addExecutableFile("bin/a"); }),
        with(k_names, "</names>", "</names>\n  <executableFiles>\n    <file path=\"bin/a\"/>\n  </executableFiles>"));
    EXPECT_EQ(edited(k_behaviors, [](PackageInfo& p) { p.addSupportedLanguage("en"); }),
              with(k_behaviors, "<contents>",
                   "<supportedLanguages>\n\t\t<language>en</language>\n\t</supportedLanguages>\n\t<contents>"));
    EXPECT_EQ(edited("<p/>", [](PackageInfo& p) { p.addSupportedLanguage("en"); }),
              "<p>\n  <supportedLanguages>\n    <language>en</language>\n  </supportedLanguages>\n</p>");
}

TEST(ManifestEditorLists, ASectionThatBecomesEmptyStays)
{
    EXPECT_EQ(edited("<p>\n <executableFiles>\n  <file path='a'/>\n </executableFiles>\n <x/></p>",
                     [](PackageInfo& p) {
                         PackageInfo other;
                         p.behaviors() = other.behaviors();
                         p.clearNames();
                     }),
              "<p>\n <executableFiles>\n  <file path='a'/>\n </executableFiles>\n <x/></p>");
    EXPECT_EQ(edited("<p>\n <services>\n  <service name='a'/>\n </services>\n</p>",
                     [](PackageInfo& p) { p.clearServices(); }),
              "<p>\n <services>\n </services>\n</p>");
}

TEST(ManifestEditorLists, ABehaviorThatMovesTakesItsTextAlong)
{
    const std::string two = "\t\t<behaviorContent path='two'><!-- 2 --><nature>b</nature></behaviorContent>\n";
    const std::string three = "\t\t<behaviorContent path='three'><!-- 3 --><nature>c</nature></behaviorContent>\n";
    EXPECT_EQ(edited(k_behaviors,
                     [](PackageInfo& p) { p.behaviors().splice(p.behaviors().end(), p.behaviors(), second(p)); }),
              with(k_behaviors, two + three, three + two));
}

TEST(ManifestEditorLists, ABehaviorThatMovesCanChangeAsWell)
{
    const auto change = [](PackageInfo& p) {
        second(p)->setNature("d");
        p.behaviors().splice(p.behaviors().end(), p.behaviors(), second(p));
    };
    EXPECT_NE(
        edited(k_behaviors, change).find("</behaviorContent>\n\t\t<behaviorContent path='two'><!-- 2 --><nature>d<"),
        std::string::npos);
}

TEST(ManifestEditorLists, ABehaviorThatIsRenamedAloneStaysInItsPlace)
{
    EXPECT_EQ(edited(k_behaviors, [](PackageInfo& p) { second(p)->setPath("zwei"); }),
              with(k_behaviors, "path='two'", "path='zwei'"));
}

TEST(ManifestEditorLists, ABehaviorThatGoesTakesItsLineWithIt)
{
    EXPECT_EQ(
        edited(k_behaviors, [](PackageInfo& p) { p.behaviors().erase(second(p)); }),
        with(k_behaviors, "\t\t<behaviorContent path='two'><!-- 2 --><nature>b</nature></behaviorContent>\n", ""));
}

TEST(ManifestEditorLists, ANewBehaviorIsLaidOutAsTheDocument)
{
    const auto change = [](PackageInfo& p) {
        BehaviorInfo behavior;
        behavior.setPath("four");
        behavior.addCondition("a < b", "fun");
        p.addBehavior(behavior);
    };
    EXPECT_EQ(edited(k_behaviors, change),
              with(k_behaviors, "\n\t</contents>",
                   "\n\t\t<behaviorContent path=\"four\">\n\t\t\t<nature></nature>\n\t\t\t<autonomous>\n"
                   "\t\t\t\t<condition purpose=\"fun\"><![CDATA[a < b]]></condition>\n\t\t\t</autonomous>\n"
                   "\t\t\t<permissions/>\n\t\t</behaviorContent>\n\t</contents>"));
}

TEST(ManifestEditorLists, InALineThatHasMoreNothingIsBroken)
{
    EXPECT_EQ(edited("<p> <services><service name='a'/> <service name='b'/></services></p>",
                     [](PackageInfo& p) {
                         p.addService({"x", "c", true, {{"V", "1"}}});
                     }),
              "<p> <services><service name='a'/> <service name='b'/> <service autorun=\"true\" name=\"c\" "
              "execStart=\"x\"><envVar name=\"V\" value=\"1\"/></service></services></p>");
}

TEST(ManifestEditorLists, TextsOfOneLanguageAreAListOfTheirOwn)
{
    const std::string tags = "<p><contents><behaviorContent path='b'><tags>\n"
                             "<tag lang='en'>fun</tag>\n<tag lang='fr'>jeu</tag>\n<tag lang='en'>game</tag>\n"
                             "</tags></behaviorContent></contents></p>";
    const auto behavior = [](PackageInfo& p) -> BehaviorInfo& { return p.behaviors().front(); };
    EXPECT_EQ(edited(tags, [&](PackageInfo& p) { behavior(p).updateTag("game", "play", "en"); }),
              with(tags, "game", "play"));
    EXPECT_EQ(edited(tags, [&](PackageInfo& p) { behavior(p).removeTag("fun", "en"); }),
              with(tags, "<tag lang='en'>fun</tag>\n", ""));
    EXPECT_EQ(edited(tags, [&](PackageInfo& p) { behavior(p).insertTag("x", "en", 0); }),
              with(tags, "<tag lang='en'>fun", "<tag lang=\"en\">x</tag>\n<tag lang='en'>fun"));
}

TEST(ManifestEditorLists, ARepeatedLanguageDoesNotTakeThePlaceOfOneThatGoes)
{
    const std::string languages = "<p><supportedLanguages>\n<language>en</language>\n<language>fr</language>\n"
                                  "<language>en</language>\n</supportedLanguages></p>";
    EXPECT_EQ(edited(languages, [](PackageInfo& p) { p.removeSupportedLanguage("en"); }),
              "<p><supportedLanguages>\n<language>fr</language>\n</supportedLanguages></p>");
}

TEST(ManifestEditorLists, ACommentThatIsReadAsALanguageGoesWithIt)
{
    EXPECT_EQ(edited("<p><supportedLanguages><!-- c --><language>en</language></supportedLanguages></p>",
                     [](PackageInfo& p) { p.removeSupportedLanguage(""); }),
              "<p><supportedLanguages><language>en</language></supportedLanguages></p>");
}

TEST(ManifestEditorLists, ANewLanguageStandsBeforeACommentThatIsReadAsALaterOne)
{
    const std::string languages = "<p><supportedLanguages>\n<language>en</language> <!-- c -->\n"
                                  "</supportedLanguages></p>";
    const auto change = [](PackageInfo& p) {
        p.clearSupportedLanguages();
        for (const char* const language : {"en", "fr", ""})
            p.addSupportedLanguage(language);
    };
    EXPECT_EQ(edited(languages, change), with(languages, "</language>", "</language>\n<language>fr</language>"));
}

TEST(ManifestEditorLists, TheFirstOfRepeatedVariablesIsEdited)
{
    const std::string service = "<p><services><service name='s'><envVar name='A' value='1'/><envVar name='A' "
                                "value='2'/></service></services></p>";
    const auto change = [](PackageInfo& p) {
        PackageService changed = p.services().front();
        changed.envVars["A"] = "3";
        p.clearServices();
        p.addService(changed);
    };
    EXPECT_EQ(edited(service, change), with(service, "'1'", "'3'"));
}

TEST(ManifestEditorLists, RequirementsAreToldApartByAllThatTheySay)
{
    const std::string requirements = "<p><requirements>\n<morvoRequirement minVersion='1'/>\n"
                                     "<morvoRequirement minVersion='2'/>\n</requirements></p>";
    EXPECT_EQ(edited(requirements, [](PackageInfo& p) { p.morvoRequirements().pop_front(); }),
              with(requirements, "<morvoRequirement minVersion='1'/>\n", ""));
    EXPECT_EQ(edited(requirements, [](PackageInfo& p) { p.morvoRequirements().front().maxVersion = "3"; }),
              with(requirements, "minVersion='1'", "minVersion='1' maxVersion='3'"));
}

TEST(ManifestEditorLists, PermissionsComeAndGo)
{
    const std::string behavior = "<p><contents><behaviorContent path='b'><permissions>\n<canSitDown/>\n</permissions>"
                                 "</behaviorContent></contents></p>";
    EXPECT_EQ(edited(behavior, [](PackageInfo& p) { p.behaviors().front().addPermission("canStandUp"); }),
              with(behavior, "<canSitDown/>", "<canSitDown/>\n<canStandUp/>"));
    EXPECT_EQ(edited(behavior, [](PackageInfo& p) { p.behaviors().front().removePermission("canSitDown"); }),
              with(behavior, "<canSitDown/>\n", ""));
}

TEST(ManifestEditorLists, TopicsAndEnginesChange)
{
    const std::string contents = "<p><contents><dialogContent topicName='t'><topic language='en' path='a'/>"
                                 "</dialogContent><languageContent path='l'><engine name='e' version='1'/>"
                                 "<locale>de</locale></languageContent></contents></p>";
    const auto change = [](PackageInfo& p) {
        DialogInfo dialog = p.dialogs().front();
        dialog.setTopic("en", "b");
        p.clearDialogs();
        p.addDialog(dialog);
    };
    EXPECT_EQ(edited(contents, change), with(contents, "path='a'", "path='b'"));
}

} // namespace zu::authoring
