// Compiled with optimisation whatever the build: what is written to a held value must not be reordered with copies of
// the AnyValue around it, as a compiler may that believes the two to be of unrelated types.
#include "support/samples.hpp"

#include <gtest/gtest.h>

#include <utility>

namespace zu {

namespace {

template <class T>
[[gnu::noinline]] AnyValue written(AnyValue value, T object)
{
    *value.getIf<T>() = object;
    return value;
}

template <class T>
[[gnu::noinline]] AnyValue writtenThenCopied(AnyValue value, T object)
{
    *value.getIf<T>() = object;
    AnyValue copy(value);
    copy.swap(value);
    return copy;
}

template <class T>
void expectWritten(T before, T after)
{
    EXPECT_EQ(*written(AnyValue::from(before), after).template getIf<T>(), after);
    EXPECT_EQ(*writtenThenCopied(AnyValue::from(before), after).template getIf<T>(), after);
}

} // namespace

TEST(AnyValueWrites, AreSeenByCopiesAndMoves)
{
    expectWritten(1, 5);
    expectWritten(false, true);
    expectWritten(1.0, 5.0);
    expectWritten(1.0f, 5.0f);
    expectWritten(short{1}, short{5});
    expectWritten(sample::Colour::Red, sample::Colour::Green);
    expectWritten(sample::Point{1, 2}, sample::Point{5, 6});
}

TEST(AnyValueWrites, ThroughAReferenceAreSeenByCopiesAndMoves)
{
    AnyValue value = AnyValue::from(1);
    int* held = value.reference().getMutableIf<int>();
    *held = 5;
    const AnyValue moved = std::move(value);
    EXPECT_EQ(*moved.getIf<int>(), 5);
}

} // namespace zu
