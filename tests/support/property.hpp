#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <rapidcheck.h>
#include <sstream>
#include <string>

namespace zu::test {

/// On how many inputs a property is checked that costs little.
constexpr int k_inputs = 10'000;

/// Of 100 inputs that a property asks for, how many it gets: ZU_PROPERTY_PERCENT in the environment, else all. Builds
/// in which inputs are slow set it.
inline int propertyPercent()
{
    const char* percent = std::getenv("ZU_PROPERTY_PERCENT");
    return percent ? std::stoi(percent) : 100;
}

/// Checks a property on `count` generated inputs, or the propertyPercent() of them, but 20 at least, and prints the
/// seed; with RC_PARAMS="seed=..." in the environment the same inputs come again. A failure shows the smallest
/// counterexample.
/// @return the number of inputs that it was checked on.
template <class Property>
int checkProperty(int count, Property&& property)
{
    count = std::max(std::min(count, 20), count * propertyPercent() / 100);
    namespace detail = rc::detail;
    const testing::TestInfo& test = *testing::UnitTest::GetInstance()->current_test_info();
    detail::TestParams params = detail::configuration().testParams;
    params.maxSuccess = count;
    params.maxSize = 20;
    std::cout << count << " inputs, seed " << params.seed << '\n';
    const detail::TestMetadata metadata{test.name(), test.name()};
    const detail::TestResult result = detail::checkTestable(std::forward<Property>(property), metadata, params);
    std::ostringstream message;
    detail::printResultMessage(result, message);
    EXPECT_TRUE(result.template is<detail::SuccessResult>()) << message.str() << "\nseed " << params.seed;
    return count;
}

} // namespace zu::test
