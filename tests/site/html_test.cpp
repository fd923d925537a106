#include "site/html.hpp"

#include <gtest/gtest.h>

namespace zu::cli {

TEST(Html, EscapedTextBeginsAndEndsNothing)
{
    EXPECT_EQ(escaped("<script>alert('1' && \"2\")</script>"),
              "&lt;script&gt;alert(&#39;1&#39; &amp;&amp; &quot;2&quot;)&lt;/script&gt;");
    EXPECT_EQ(escaped("&amp;"), "&amp;amp;");
    EXPECT_EQ(escaped("--> ]]> `${x}`"), "--&gt; ]]&gt; `${x}`");
    EXPECT_EQ(escaped("日本 é\n\t"), "日本 é\n\t");
}

TEST(Html, CharactersThatHtmlCannotCarryAreReplaced)
{
    EXPECT_EQ(escaped(std::string_view("a\0b\x1B\x7F\r", 6)), "a\xEF\xBF\xBD"
                                                              "b\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD");
}

TEST(Html, OnlyMarkupStaysAsItIs)
{
    const std::string stranger = "<b>";
    Html inner;
    inner << "<i>"_html << stranger << "</i>"_html;
    Html html;
    html << inner << std::size_t{7} << "<br>";
    EXPECT_EQ(html.text(), "<i>&lt;b&gt;</i>7&lt;br&gt;");
}

TEST(Html, OnlyLanguagesThatReadersKnowAreNamed)
{
    EXPECT_EQ(languageAttributes("fr_CA").text(), " lang=\"fr-CA\" dir=\"auto\"");
    EXPECT_EQ(languageAttributes("ja").text(), " lang=\"ja\" dir=\"auto\"");
    for (const char* code : {"", "xq", "\"><script>", "fr\" onclick=\"", "no language", "C"})
        EXPECT_EQ(languageAttributes(code).text(), " dir=\"auto\"") << code;
}

} // namespace zu::cli
