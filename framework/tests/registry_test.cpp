#include "support/log_capture.hpp"
#include "support/samples.hpp"

#include <zu/native/object.hpp>
#include <zu/native/struct.hpp>
#include <zu/registry.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <list>
#include <thread>

namespace zu {

using detail::NativeStruct;
using log::Level;

namespace registrytest {

// One class a test, because what is registered stays.
template <int N>
struct Plain
{
    int a = 0;
    int b = 0;
};

/// A new interface that stays, registered or not.
template <int N>
NativeStruct<Plain<N>>& plainType(const std::string& name)
{
    static auto& made = *new std::list<NativeStruct<Plain<N>>>;
    return made.emplace_back(Schema<Plain<N>>{name, {{"a", &Plain<N>::a}}});
}

} // namespace registrytest

using registrytest::Plain;
using registrytest::plainType;

namespace {

struct Hidden
{
    int a = 0;
};

std::vector<std::string> messagesOf(const Capture& capture, const std::string& category)
{
    std::vector<std::string> messages;
    for (const auto& [level, name, message, file, function, line] : capture.records) {
        EXPECT_EQ(level, Level::Warning);
        EXPECT_EQ(file, "src/registry");
        if (name == category)
            messages.push_back(message);
    }
    return messages;
}

} // namespace

TEST(Registry, UnknownTypesAndNamesAreNull)
{
    EXPECT_EQ(getType(TypeInfo::of<Plain<0>>()), nullptr);
    EXPECT_EQ(findType("::nothing::Known"), nullptr);
    EXPECT_EQ(findType(""), nullptr);
}

TEST(Registry, GettingATypeDoesNotMakeIt)
{
    EXPECT_EQ(getType(TypeInfo::of<std::vector<Plain<0>>>()), nullptr);
    typeOf<std::vector<Plain<0>>>();
    EXPECT_EQ(getType(TypeInfo::of<std::vector<Plain<0>>>()), nullptr);
}

TEST(Registry, TheFirstRegisteredInterfaceWins)
{
    auto& first = plainType<1>("::plain::One");
    auto& second = plainType<1>("::plain::OneAgain");
    EXPECT_TRUE(registerType(TypeInfo::of<Plain<1>>(), &first));
    EXPECT_FALSE(registerType(TypeInfo::of<Plain<1>>(), &second));
    EXPECT_FALSE(registerType(TypeInfo::of<Plain<1>>(), &first));
    EXPECT_EQ(getType(TypeInfo::of<Plain<1>>()), &first);
    EXPECT_EQ(typeOf<Plain<1>>(), &first);
    EXPECT_EQ(findType("::plain::One"), &first);
    EXPECT_EQ(findType("::plain::OneAgain"), nullptr);
}

TEST(Registry, StructNamesAreNotNormalised)
{
    auto& type = plainType<2>("plain::Two");
    EXPECT_TRUE(registerStruct(&type));
    EXPECT_FALSE(registerStruct(&type));
    EXPECT_EQ(findType("plain::Two"), &type);
    EXPECT_EQ(findType("::plain::Two"), nullptr);
    EXPECT_EQ(getType(type.info()), nullptr);
}

TEST(Registry, AnotherTypesNameIsRefusedWithAMessage)
{
    const Capture capture;
    auto& owner = plainType<3>("::plain::Three");
    EXPECT_TRUE(registerStruct(&owner));
    EXPECT_FALSE(registerStruct(&plainType<4>("::plain::Three")));
    EXPECT_FALSE((registerStruct<Plain<4>>("::plain::Three", {{"a", &Plain<4>::a}})));
    EXPECT_EQ(findType("::plain::Three"), &owner);
    EXPECT_EQ(getType(TypeInfo::of<Plain<4>>()), nullptr);
    const std::string message = "the name ::plain::Three of zu::registrytest::Plain<4> is that of "
                                "zu::registrytest::Plain<3> already";
    EXPECT_THAT(messagesOf(capture, "zutype.registry"), testing::ElementsAre(message, message));
}

TEST(Registry, MissingAndMismatchedInterfacesAreRefusedWithAMessage)
{
    const Capture capture;
    EXPECT_FALSE(registerType(TypeInfo::of<Plain<5>>(), nullptr));
    EXPECT_FALSE(registerType(TypeInfo::of<Plain<5>>(), typeOf<int>()));
    EXPECT_FALSE(registerStruct(nullptr));
    EXPECT_EQ(getType(TypeInfo::of<Plain<5>>()), nullptr);
    EXPECT_THAT(messagesOf(capture, "zutype.registry"),
                testing::ElementsAre("no interface was given for zu::registrytest::Plain<5>",
                                     "the interface given for zu::registrytest::Plain<5> is that of int",
                                     "no interface was given"));
}

TEST(Registry, AnonymousNamespacesAreRefusedWithAMessage)
{
    const Capture capture;
    EXPECT_FALSE(registerStruct<Hidden>("::Hidden", {{"a", &Hidden::a}}));
    auto& type = *new NativeStruct<Hidden>(Schema<Hidden>{"::Hidden", {{"a", &Hidden::a}}});
    EXPECT_FALSE(registerStruct(&type));
    EXPECT_FALSE(registerType(type.info(), &type));
    EXPECT_EQ(findType("::Hidden"), nullptr);
    EXPECT_EQ(getType(type.info()), nullptr);
    const std::string message =
        "zu::(anonymous namespace)::Hidden stands in an anonymous namespace, which the type system "
        "cannot tell from another library's";
    EXPECT_THAT(messagesOf(capture, "zutype.registry"), testing::ElementsAre(message, message, message));
    delete &type;
}

TEST(Registry, ObjectClassesAreRegisteredOnce)
{
    EXPECT_TRUE(registerObject<Plain<6>>());
    EXPECT_FALSE(registerObject<Plain<6>>());
    EXPECT_EQ(typeOf<Plain<6>>()->kind(), TypeKind::Object);
}

TEST(Registry, LooksUpWhileOtherThreadsRegister)
{
    std::atomic<bool> stop{false};
    std::thread reader([&stop] {
        while (!stop) {
            const TypeInterface* type = findType("::plain::Raced500");
            if (type) {
                EXPECT_EQ(type->name(), "::plain::Raced500");
            }
            getType(TypeInfo::of<Plain<7>>());
        }
    });
    static std::vector<const TypeInterface*> types;
    for (int i = 0; i != 1'000; ++i)
        types.push_back(&plainType<7>("::plain::Raced" + std::to_string(i)));
    std::vector<std::thread> writers;
    std::atomic<int> added{0};
    for (int writer = 0; writer != 7; ++writer) {
        writers.emplace_back([&added] {
            for (const TypeInterface* type : types)
                added += registerStruct(type) ? 1 : 0;
        });
    }
    for (auto& writer : writers)
        writer.join();
    stop = true;
    reader.join();
    EXPECT_EQ(added, 1'000);
}

} // namespace zu
