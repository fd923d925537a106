// Values whose types are not known, as JSON.
#include <zu/json.hpp>

#include <iostream>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace robot {

struct Reading
{
    std::string sensor;
    std::optional<double> celsius;
    std::vector<int> samples;
};

} // namespace robot

template <>
struct zu::StructSchema<robot::Reading>
{
    static Schema<robot::Reading> describe()
    {
        using robot::Reading;
        return {"::robot::Reading",
                {{"sensor", &Reading::sensor}, {"celsius", &Reading::celsius}, {"samples", &Reading::samples}}};
    }
};

int main()
{
    const std::vector<robot::Reading> readings{{"head", 36.5, {1, 2}}, {"knee", std::nullopt, {}}};
    std::cout << zu::toJson(zu::AnyReference::from(readings)) << '\n';

    std::map<std::string, zu::AnyValue> notes;
    notes["battery"] = zu::AnyValue::from(std::map<int, bool>{{1, true}});
    notes["serial"] = zu::AnyValue::from(9007199254740993);
    std::cout << zu::toJson(zu::AnyReference::from(notes)) << '\n';

    notes["battery"] = zu::AnyValue::from(std::cout.rdbuf()); // a pointer to what nothing is known of
    try {
        zu::toJson(zu::AnyReference::from(notes));
    } catch (const zu::ConversionError& error) {
        std::cout << error.failure().path << ": " << error.failure().reason << '\n';
    }
}
