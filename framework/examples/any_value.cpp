// Values of any type: how they are held, read and converted.
#include <zu/any_value.hpp>
#include <zu/conversion.hpp>

#include <iostream>
#include <list>
#include <map>
#include <string>
#include <vector>

namespace {

void holdAndRead()
{
    std::map<std::string, zu::AnyValue> settings;
    settings["speed"] = zu::AnyValue::from(5);
    settings["names"] = zu::AnyValue::from(std::vector<std::string>{"Ada", "Grace"});

    const int* speed = settings["speed"].getIf<int>(); // the held int itself, null for any other type
    const long wide = settings["speed"].to<long>();    // a converted copy
    std::cout << *speed << ' ' << wide << '\n';

    settings["names"].getIf<std::vector<std::string>>()->push_back("Mary"); // changed in place
    for (const zu::AnyReference name : settings["names"])
        std::cout << name.text() << ' ';
    std::cout << '\n';
}

void convertOrSayWhyNot()
{
    const auto mixed = zu::AnyValue::from(std::vector<zu::AnyValue>{zu::AnyValue::from(1), zu::AnyValue::from(2.0)});
    for (const int number : mixed.to<std::list<int>>())
        std::cout << number << ' ';
    std::cout << '\n';

    const auto large = zu::AnyValue::from(300);
    if (!large.tryTo<signed char>()) // costs no exception
        std::cout << "300 does not fit\n";

    try {
        large.to<signed char>();
    } catch (const zu::ConversionError& error) {
        std::cout << error.what() << '\n';
    }
}

void referInsteadOfCopy()
{
    std::vector<int> numbers{1, 2, 3};
    const auto reference = zu::AnyReference::from(numbers);
    reference._element(0).set(10.0); // converted to the element's type
    std::cout << numbers[0] << ' ' << reference.size() << '\n';

    const std::vector<int>& sealed = numbers;
    std::cout << zu::AnyReference::from(sealed).isReadOnly() << '\n';
}

} // namespace

int main()
{
    holdAndRead();
    convertOrSayWhyNot();
    referInsteadOfCopy();
}
