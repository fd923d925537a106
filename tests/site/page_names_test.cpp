#include "site/page_names.hpp"

#include <gtest/gtest.h>

namespace zu::cli {

TEST(PageNames, KeepWhatIsSafe)
{
    PageNames names;
    EXPECT_EQ(names.next("org.example.hello-2"), "org.example.hello-2.html");
    EXPECT_EQ(names.next("7c1e52a4-93d8"), "7c1e52a4-93d8.html");
}

TEST(PageNames, LeaveNoFolderAndHideNothing)
{
    PageNames names;
    EXPECT_EQ(names.next("../../etc/passwd"), "etc-passwd.html");
    EXPECT_EQ(names.next("a/../b\\c"), "a-b-c.html");
    EXPECT_EQ(names.next(".hidden..name."), "hidden.name.html");
    EXPECT_EQ(names.next("\"><script>"), "script.html");
}

TEST(PageNames, AreGivenOnceAlsoWhereCaseDoesNotCount)
{
    PageNames names;
    EXPECT_EQ(names.next("Hello"), "hello.html");
    EXPECT_EQ(names.next("hello"), "hello-2.html");
    EXPECT_EQ(names.next("hello-2"), "hello-2-2.html");
    EXPECT_EQ(names.next("HELLO"), "hello-3.html");
}

TEST(PageNames, OfManyPackagesWithOneNameAreCounted)
{
    constexpr int k_packages = 100'000; // minutes if each tried all numbers
    PageNames names;
    std::string last;
    for (int i = 0; i < k_packages; ++i)
        last = names.next("hello");
    EXPECT_EQ(last, "hello-" + std::to_string(k_packages) + ".html");
}

TEST(PageNames, OfNothingSafeAreThatOfAnyPackage)
{
    PageNames names;
    EXPECT_EQ(names.next(""), "package.html");
    EXPECT_EQ(names.next("日本"), "package-2.html");
}

TEST(PageNames, AreShortEnoughForAnyFileSystem)
{
    PageNames names;
    EXPECT_EQ(names.next(std::string(500, 'x')), std::string(80, 'x') + ".html");
    EXPECT_EQ(names.next(std::string(500, 'x')), std::string(80, 'x') + "-2.html");
}

} // namespace zu::cli
