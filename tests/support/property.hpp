#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>
#include <rapidcheck.h>
#include <sstream>

namespace zu::test {

/// Checks a property on `count` generated inputs and prints the seed; with RC_PARAMS="seed=..." in the environment the
/// same inputs come again. A failure shows the smallest counterexample.
template <class Property>
void checkProperty(int count, Property&& property)
{
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
}

} // namespace zu::test
