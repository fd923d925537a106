// The operations on values beside a second, naive implementation of theirs, on values made at random.
#include <zu/any_value.hpp>
#include <zu/conversion.hpp>

#include <gtest/gtest.h>

#include <list>
#include <map>
#include <memory>
#include <random>
#include <sstream>
#include <variant>

namespace zu {

namespace {

/// What a value is, as plain data with the comparison and the text that follow from the rules.
struct Model
{
    using List = std::vector<Model>;
    using Map = std::map<std::string, Model>;

    std::variant<std::monostate, double, std::string, List, Map> content;

    friend bool operator==(const Model& a, const Model& b) { return a.content == b.content; }
    friend bool operator<(const Model& a, const Model& b) { return a.content < b.content; }
};

struct Sample
{
    Model model;
    AnyValue value;
};

/// Makes values of few contents, so that equal ones are frequent, and of many types for each content.
class Generator
{
public:
    explicit Generator(unsigned seed) : m_random(seed) {}

    Sample sample(int depth)
    {
        switch (upTo(depth == 0 ? 2 : 4)) {
        case 0:
            return {{}, upTo(1) == 0 ? AnyValue() : AnyValue::from(std::optional<int>())};
        case 1:
            return number();
        case 2:
            return text();
        case 3:
            return list(depth - 1);
        default:
            return map(depth - 1);
        }
    }

private:
    int upTo(int last) { return std::uniform_int_distribution<>(0, last)(m_random); }

    Sample number()
    {
        const int number = upTo(2);
        const AnyValue values[] = {AnyValue::from(number), AnyValue::from(static_cast<unsigned char>(number)),
                                   AnyValue::from(double(number)), AnyValue::from(std::optional<long>(number))};
        return {{double(number)}, values[upTo(3)]};
    }

    Sample text()
    {
        const std::string text(static_cast<std::size_t>(upTo(2)), 'a');
        return {{text}, AnyValue::from(text)};
    }

    Sample list(int depth)
    {
        Model::List models;
        std::vector<AnyValue> values;
        for (int i = upTo(2); i != 0; --i) {
            Sample element = sample(depth);
            models.push_back(element.model);
            values.push_back(element.value);
        }
        if (upTo(1) == 0)
            return {{models}, AnyValue::from(std::list<AnyValue>(values.begin(), values.end()))};
        return {{models}, AnyValue::from(values)};
    }

    Sample map(int depth)
    {
        Model::Map models;
        std::map<std::string, AnyValue> values;
        for (int i = upTo(2); i != 0; --i) {
            const std::string key(1, static_cast<char>('a' + upTo(2)));
            Sample value = sample(depth);
            models.insert_or_assign(key, value.model);
            values.insert_or_assign(key, value.value);
        }
        if (upTo(1) == 0)
            return {{models}, AnyValue::from(std::unordered_map<std::string, AnyValue>(values.begin(), values.end()))};
        return {{models}, AnyValue::from(values)};
    }

    std::mt19937 m_random;
};

std::vector<Sample> samples(unsigned seed)
{
    Generator generator(seed);
    std::vector<Sample> samples;
    for (int i = 0; i != 150; ++i)
        samples.push_back(generator.sample(3));
    return samples;
}

template <class T>
int order(const T& a, const T& b)
{
    return a < b ? -1 : b < a ? 1 : 0;
}

} // namespace

TEST(GeneratedValues, CompareAsTheirContentDoes)
{
    constexpr unsigned k_seed = 20'251'122;
    const std::vector<Sample> all = samples(k_seed);
    for (const Sample& a : all) {
        for (const Sample& b : all) {
            SCOPED_TRACE(testing::Message() << a.value << " and " << b.value);
            const int expected = order(a.model, b.model);
            ASSERT_EQ(compare(a.value, b.value), expected);
            ASSERT_EQ(a.value == b.value, expected == 0);
            ASSERT_TRUE(expected != 0 || a.value.hash() == b.value.hash());
        }
    }
}

TEST(GeneratedValues, AreEqualToTheirCopiesAndToWhatTheyConvertTo)
{
    for (const Sample& sample : samples(7)) {
        SCOPED_TRACE(testing::Message() << sample.value);
        EXPECT_EQ(AnyValue(sample.value), sample.value);
        if (sample.value.kind() == TypeKind::List) {
            EXPECT_EQ(AnyValue::from(sample.value.to<std::vector<AnyValue>>()), sample.value);
        }
        if (sample.value.kind() == TypeKind::Map) {
            EXPECT_EQ((AnyValue::from(sample.value.to<std::map<std::string, AnyValue>>())), sample.value);
        }
    }
}

} // namespace zu
