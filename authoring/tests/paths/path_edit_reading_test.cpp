#include <zupackage/authoring/path_edit.hpp>
#include <zupackage/package_info.hpp>

#include <gtest/gtest.h>

namespace zu::authoring {

namespace {

SourceDocument withText(const std::string& bytes, const std::string& path, const std::string& text)
{
    return edited(SourceDocument::parse(bytes), {SetText{ManifestPath(path), text}});
}

/// Why a text is not set; empty when it is.
std::string refusal(const std::string& bytes, const std::string& path, const std::string& text)
{
    try {
        withText(bytes, path, text);
        return {};
    } catch (const PathEditError& error) {
        EXPECT_EQ(error.reason(), PathEditError::Reason::Refused);
        return error.what();
    }
}

PackageInfo read(const std::string& manifest)
{
    PackageInfo package;
    EXPECT_TRUE(readManifest(manifest, package)) << manifest;
    return package;
}

/// The name in English that a package has when that is set.
std::string nameReadAfter(const std::string& bytes, const std::string& text)
{
    return read(withText(bytes, "names/name[@lang='en']", text).text()).name("en");
}

std::string get(const std::string& bytes, const std::string& path)
{
    const SourceDocument document = SourceDocument::parse(bytes);
    const std::vector<PathTarget> targets = select(document, ManifestPath(path));
    return targets.size() == 1 ? targets.front().text() : "not one";
}

const std::string k_twoNames =
    "<p uuid='a' version='1.0'><names><name lang='en'>A</name><name lang='fr'>B</name></names></p>";

} // namespace

TEST(PathEditReading, NoEntryTakesTheIdentityOfAnother)
{
    const std::string already = "there is a \"name\" for \"en\" already";
    EXPECT_EQ(refusal(k_twoNames, "names/name[@lang='fr']/@lang", "en"), already);
    EXPECT_EQ(refusal(k_twoNames, "names/name/@lang", "en"), already);
    EXPECT_EQ(refusal(k_twoNames, "names/name/@lang", "de"), "there is a \"name\" for \"de\" already");
    EXPECT_EQ(refusal(k_twoNames, "names/name[@lang='fr']/@lang", "de"), "");
    EXPECT_EQ(refusal("<p><supportedLanguages><language>en</language><language>fr</language></supportedLanguages></p>",
                      "supportedLanguages/language", "de"),
              "there is a \"language\" for \"de\" already");
}

TEST(PathEditReading, WhiteSpaceAloneIsRead)
{
    for (const std::string blank : {" ", "\n", "\r", "\t\r\n", "\xc2\xa0", "\xe2\x80\xa8"}) {
        EXPECT_EQ(nameReadAfter(k_twoNames, blank), blank);
        const std::string manifest =
            edited(SourceDocument::parse("<p/>"),
                   {AddEntry{ManifestPath("names/name[@lang='en']"), {SetText{ManifestPath("."), blank}}}})
                .text();
        EXPECT_EQ(read(manifest).name("en"), blank);
        EXPECT_EQ(get(manifest, "names/name"), blank);
    }
}

TEST(PathEditReading, AByteOrderMarkIsRead)
{
    const std::string mark = "\xef\xbb\xbf";
    for (const std::string& text : {mark, mark + "A", mark + mark + "A"}) {
        EXPECT_EQ(nameReadAfter(k_twoNames, text), text);
    }
    EXPECT_EQ(read(withText(k_twoNames, "@author", mark + "A").text()).author(), mark + "A");
    const std::string marked = "<p><services><service name='" + mark + "s' execStart='a'/></services></p>";
    EXPECT_EQ(refusal(marked, "services/service/@execStart", "b"), "");
}

TEST(PathEditReading, WhatAnEncodingCannotSayToReadersIsRefused)
{
    const std::string latin = "<?xml version='1.0' encoding='ISO-8859-1'?>" + k_twoNames;
    EXPECT_EQ(refusal(latin, "@author", "\xf0\x9f\xa4\x96"),
              "readers would not take \"\xf0\x9f\xa4\x96\" from the manifest that this makes");
    EXPECT_NE(refusal(latin, "names/name[@lang='en']", "\xe2\x80\xa8"), "");
    EXPECT_EQ(refusal(latin, "@author", "\xe2\x82\xac"), "");
    EXPECT_EQ(refusal(k_twoNames, "@author", "\xf0\x9f\xa4\x96"), "");
}

TEST(PathEditReading, LineEndsAreReadAsTheyAreGiven)
{
    for (const std::string lineEnd : {"\n", "\r", "\r\n"}) {
        const std::string manifest = "<p>" + lineEnd + lineEnd + "<names>" + lineEnd + "</names></p>";
        for (const std::string text : {"x\ny", "x\ry", "x\r\ny"})
            EXPECT_EQ(nameReadAfter(manifest, text), text);
    }
}

TEST(PathEditReading, GetGivesWhatReadersTake)
{
    const std::string manifest = "<p author='a\tb'><names><name lang='en'>x\r\ny</name></names></p>";
    EXPECT_EQ(get(manifest, "names/name"), "x\r\ny");
    EXPECT_EQ(get(manifest, "@author"), "a\tb");
    EXPECT_EQ(read(manifest).name("en"), "x\r\ny");
    EXPECT_EQ(read(manifest).author(), "a\tb");
}

TEST(PathEditReading, AnyElementInAListOfTextsCountsAsAnEntry)
{
    EXPECT_EQ(refusal("<p><names><nom lang='en'>A</nom></names></p>", "names/name[@lang='en']", "B"),
              "there is a \"nom\" for \"en\" already, which readers take for a \"name\"");
}

TEST(PathEditReading, ASectionThatStandsTwiceIsOne)
{
    const std::string twice = "<p><names><name lang='fr'>B</name></names><names><name lang='en'>A</name></names></p>";
    EXPECT_EQ(withText(twice, "names/name[@lang='en']", "C").text(),
              "<p><names><name lang='fr'>B</name></names><names><name lang='en'>C</name></names></p>");
    EXPECT_EQ(withText(twice, "names/name[@lang='de']", "D").text(),
              "<p><names><name lang='fr'>B</name></names>"
              "<names><name lang='en'>A</name><name lang='de'>D</name></names></p>");
    EXPECT_EQ(refusal(twice, "names[1]/name[@lang='en']", "C"), "there is a \"name\" for \"en\" already");
}

TEST(PathEditReading, WhatReadersTakeFromElsewhereIsRefused)
{
    const std::string natures = "<p><contents><behaviorContent path='b'><nature>solitary</nature>"
                                "<nature>solitary</nature></behaviorContent></contents></p>";
    const std::string path = "contents/behaviorContent[@path='b']/nature";
    EXPECT_EQ(refusal(natures, path, "interactive"), "");
    EXPECT_EQ(refusal(natures, path + "[2]", "interactive"), "");
    EXPECT_EQ(refusal(natures, path + "[1]", "interactive"),
              "readers would not take \"interactive\" from the manifest that this makes");
}

} // namespace zu::authoring
