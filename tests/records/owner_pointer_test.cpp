#include "records/owner_pointer.hpp"

#include <gtest/gtest.h>

namespace zu {

TEST(OwnerPointer, ACopyHasNoOwnerOfItsOwnAndAnAssignedOneKeepsIt)
{
    int first = 1;
    int second = 2;
    const OwnerPointer<int> source(&first);
    OwnerPointer<int> copy(source);
    copy.reset(&second);
    EXPECT_EQ(&*copy, &second);
    copy = source;
    EXPECT_EQ(&*copy, &second);
    EXPECT_EQ(&*source, &first);
}

} // namespace zu
