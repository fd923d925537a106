#include "support/samples.hpp"

#include <zu/registry.hpp>
#include <zu/type/unknown.hpp>
#include <zu/type_of.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <stdexcept>
#include <thread>
#include <utility>

namespace zu {

namespace {

struct Anonymous
{
};

constexpr std::size_t k_threads = 8;
constexpr std::size_t k_rounds = 1'000;

/// Runs `work(thread number)` on every thread, all let go at once; round by round, the threads being kept.
template <class Work>
void onThreads(std::size_t rounds, Work work)
{
    std::atomic<std::size_t> arrived{0};
    std::vector<std::thread> threads;
    for (std::size_t number = 0; number != k_threads; ++number) {
        threads.emplace_back([&arrived, &work, rounds, number] {
            for (std::size_t round = 0; round != rounds; ++round) {
                ++arrived;
                while (arrived < k_threads * (round + 1))
                    std::this_thread::yield();
                work(round, number);
            }
        });
    }
    for (auto& thread : threads)
        thread.join();
}

std::atomic<std::size_t> g_made{0};

const TypeInterface* makeCounted()
{
    ++g_made;
    std::this_thread::yield();
    return typeOf<int>();
}

const TypeInterface* makeFailing()
{
    if (++g_made % 2 == 1)
        throw std::runtime_error("not this time");
    return typeOf<int>();
}

} // namespace

namespace typeoftest {

template <std::size_t N>
struct Numbered
{
};

/// One class of interfaces for all of them: that they are made is what counts, and a class for each costs the compiler.
class NumberedType final : public UnknownTypeInterface
{
public:
    explicit NumberedType(const TypeInfo& info) : UnknownTypeInterface(info) {}

    void* initializeStorage() const override { return nullptr; }
    void* clone(const void*) const override { return nullptr; }
    void destroy(void*) const override {}
};

template <std::size_t... N>
std::array<const TypeInterface* (*)(), sizeof...(N)> lookUps(std::index_sequence<N...>)
{
    return {&typeOf<Numbered<N>>...};
}

} // namespace typeoftest

template <std::size_t N>
struct NativeType<typeoftest::Numbered<N>>
{
    static const TypeInterface* make()
    {
        ++g_made;
        std::this_thread::yield();
        return new typeoftest::NumberedType(TypeInfo::of<typeoftest::Numbered<N>>());
    }
};

TEST(TypeOf, StripsQualifiersAndReferences)
{
    EXPECT_EQ(typeOf<const std::string&>(), typeOf<std::string>());
    EXPECT_EQ(typeOf<volatile int>(), typeOf<int>());
}

TEST(TypeOf, GivesTheSameInterfaceAgain) { EXPECT_EQ(typeOf<std::vector<int>>(), typeOf<std::vector<int>>()); }

TEST(TypeOf, FirstUseMakesAStructKnownUnderItsName)
{
    EXPECT_EQ(typeOf<sample::Line>()->name(), "::sample::Line");
    EXPECT_EQ(findType("::sample::Line"), typeOf<sample::Line>());
}

TEST(TypeOf, RefusesTypesOfAnonymousNamespaces)
{
    try {
        typeOf<std::vector<Anonymous>>();
        FAIL();
    } catch (const std::invalid_argument& error) {
        EXPECT_THAT(error.what(), testing::HasSubstr("(anonymous namespace)::Anonymous"));
        EXPECT_THAT(error.what(), testing::EndsWith("give the namespace a name"));
    }
    EXPECT_THROW(typeOf<Anonymous>(), std::invalid_argument);
}

TEST(TypeSlot, EightThreadsMakeOneInterfaceInEachOfAThousandRounds)
{
    std::vector<detail::TypeSlot> slots(k_rounds);
    std::vector<std::array<const TypeInterface*, k_threads>> seen(k_rounds);
    g_made = 0;
    onThreads(k_rounds, [&](std::size_t round, std::size_t thread) {
        seen[round][thread] = slots[round].get(TypeInfo::of<typeoftest::Numbered<99>>(), &makeCounted);
    });
    EXPECT_EQ(g_made, k_rounds);
    for (const auto& round : seen)
        EXPECT_THAT(round, testing::Each(typeOf<int>()));
}

TEST(TypeSlot, AFailedAttemptIsItsCallersAndTheNextOneTriesAnew)
{
    std::vector<detail::TypeSlot> slots(k_rounds);
    std::atomic<std::size_t> failed{0};
    g_made = 0;
    onThreads(k_rounds, [&](std::size_t round, std::size_t) {
        auto& slot = slots[round];
        try {
            EXPECT_EQ(slot.get(TypeInfo::of<typeoftest::Numbered<99>>(), &makeFailing), typeOf<int>());
        } catch (const std::runtime_error&) {
            ++failed;
        }
    });
    EXPECT_EQ(failed, k_rounds);
    EXPECT_EQ(g_made, 2 * k_rounds);
}

TEST(TypeOf, EightThreadsShareTheInterfaceOfEveryLazilyMadeType)
{
    const auto lookUps = typeoftest::lookUps(std::make_index_sequence<40>());
    std::array<std::array<const TypeInterface*, k_threads>, 40> seen{};
    g_made = 0;
    onThreads(lookUps.size(), [&](std::size_t round, std::size_t thread) { seen[round][thread] = lookUps[round](); });
    EXPECT_EQ(g_made, seen.size());
    for (const auto& round : seen) {
        EXPECT_NE(round.front(), nullptr);
        EXPECT_THAT(round, testing::Each(round.front()));
    }
}

} // namespace zu
