#pragma once

// What every header for the users of values must give; includes nothing itself, so that the header is what it compiles
// by.

inline long sumOf(const zu::AnyReferenceBase& list)
{
    long sum = 0;
    for (const zu::AnyReference element : list)
        sum += element.to<long>();
    return sum;
}

inline long sumOfSomeNumbers()
{
    const auto value = zu::AnyValue::from(std::vector<int>{1, 2});
    const std::map<std::string, short> byName{{"three", short{3}}};
    return sumOf(value) + value.reference()._element(0).toInt() +
           zu::AnyReference::from(byName).to<std::map<std::string, long>>().at("three") +
           static_cast<long>(zu::typeOf<std::list<double>>()->kind());
}
