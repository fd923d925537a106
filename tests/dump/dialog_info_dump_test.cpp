#include "support/manifests.hpp"

namespace zu {

TEST(DialogDump, TopicsStandWithoutIndentation)
{
    DialogInfo dialog;
    EXPECT_EQ(test::dumpOf(dialog), "Topic name: \nType version: \nTopic files: \n");
    dialog.setTopicName("weather");
    dialog.setTypeVersion("1.0");
    dialog.setTopic("fr", "b");
    dialog.setTopic("en", "a");
    EXPECT_EQ(test::dumpOf(dialog), "Topic name: weather\nType version: 1.0\nTopic files: \nen -> a\nfr -> b\n");
}

} // namespace zu
