// Reading, changing, comparing and printing values whose types are not known.
#include <zu/conversion.hpp>
#include <zu/dispatch.hpp>

#include <cstdint>
#include <iostream>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace robot {

enum class Gait
{
    Walk,
    Trot
};

struct Joint
{
    std::string name;
    double angle = 0;
};

struct Pose
{
    Gait gait = Gait::Walk;
    std::optional<int> speed;
    std::vector<Joint> joints;
    std::map<std::string, zu::AnyValue> notes;
};

} // namespace robot

template <>
struct zu::EnumSchema<robot::Gait>
{
    static std::vector<Enumerator> describe() { return {{"Walk", robot::Gait::Walk}, {"Trot", robot::Gait::Trot}}; }
};

template <>
struct zu::StructSchema<robot::Joint>
{
    static Schema<robot::Joint> describe()
    {
        return {"::robot::Joint", {{"name", &robot::Joint::name}, {"angle", &robot::Joint::angle}}};
    }
};

template <>
struct zu::StructSchema<robot::Pose>
{
    static Schema<robot::Pose> describe()
    {
        using robot::Pose;
        return {"::robot::Pose",
                {{"gait", &Pose::gait}, {"speed", &Pose::speed}, {"joints", &Pose::joints}, {"notes", &Pose::notes}}};
    }
};

namespace {

/// Adds up the numbers in a value, however they are nested in lists.
class Sum final : public zu::PartialVisitor
{
public:
    double sum = 0;

    void visitInt(std::int64_t number, bool, unsigned) override { sum += static_cast<double>(number); }
    void visitFloat(double number, unsigned) override { sum += number; }
    void visitList(const zu::AnyReference& list) override
    {
        for (const zu::AnyReference element : list)
            zu::dispatch(element, *this);
    }
};

void changeByName()
{
    robot::Pose pose;
    const auto reference = zu::AnyReference::from(pose);
    reference.member("speed").set(3); // an optional takes what its value takes
    reference.member("joints").append(robot::Joint{"knee", 0.5});
    reference.member("joints")._element(0).member("angle").set(1);
    reference.member("notes").insert("rain", true);
    std::cout << reference << '\n';

    const zu::AnyReference rain = reference.member("notes").find("rain");
    std::cout << rain << ' ' << reference.member("notes").find("snow").isEmpty() << '\n';
    reference.member("notes").erase("rain");
    reference.member("joints").clear();

    try {
        reference.member("pace");
    } catch (const std::out_of_range& error) {
        std::cout << error.what() << '\n';
    }
}

void compare()
{
    const auto one = zu::AnyValue::from(1);
    std::cout << (one == zu::AnyValue::from(1.0)) << (one < zu::AnyValue::from("one")) << '\n';

    const std::vector<int> list{1, 2};
    const std::set<long> set{2, 1};
    std::cout << (zu::AnyReference::from(list) == zu::AnyReference::from(set)) << '\n';

    std::map<zu::AnyValue, std::string> names{{one, "one"}, {zu::AnyValue::from("two"), "two"}};
    std::cout << names.at(zu::AnyValue::from(1.0)) << '\n';
}

void holdWhatIsReferredTo()
{
    std::vector<int> list{1, 2};
    std::vector<zu::AnyValue> copies;
    for (const zu::AnyReference element : zu::AnyReference::from(list))
        copies.push_back(zu::AnyValue::from(element)); // holds the number, not the reference
    list.clear();
    std::cout << copies[1] << '\n';

    auto speed = zu::AnyValue::from(2.5);
    speed.set(3); // converted to the type that is held
    std::cout << speed.holds<double>() << speed << '\n';
}

void nameEnumerators()
{
    const robot::Gait gait = robot::Gait::Trot;
    const auto reference = zu::AnyReference::from(gait);
    std::cout << reference.enumName() << ' ' << reference.toInt() << '\n';
}

void visitSomeKinds()
{
    const std::vector<zu::AnyValue> values{zu::AnyValue::from(1), zu::AnyValue::from("text"),
                                           zu::AnyValue::from(std::vector<double>{0.5, 2})};
    Sum visitor;
    zu::dispatch(zu::AnyReference::from(values), visitor);
    std::cout << visitor.sum << '\n';
}

} // namespace

int main()
{
    changeByName();
    compare();
    holdWhatIsReferredTo();
    nameEnumerators();
    visitSomeKinds();
}
