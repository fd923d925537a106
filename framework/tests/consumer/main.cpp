#include <zu/any_value.hpp>

#include <cstdlib>

/// Uses the installed library: its headers, its templates and what stands in it.
int main()
{
    const zu::AnyValue value = zu::AnyValue::from(std::vector<int>{1, 2});
    return value.to<std::vector<double>>() == std::vector<double>{1, 2} ? EXIT_SUCCESS : EXIT_FAILURE;
}
