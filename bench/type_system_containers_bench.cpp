// Walking and converting containers, beside the loop that a program would write itself.
#include <zu/any_value.hpp>
#include <zu/conversion.hpp>

#include <benchmark/benchmark.h>
#include <list>
#include <map>
#include <string>
#include <vector>

namespace sample {

struct Setting
{
    std::string name;
    int value = 0;
};

} // namespace sample

template <>
struct zu::StructSchema<sample::Setting>
{
    static Schema<sample::Setting> describe()
    {
        return {"::sample::Setting", {{"name", &sample::Setting::name}, {"value", &sample::Setting::value}}};
    }
};

namespace {

std::vector<int> ints() { return std::vector<int>(1'000, 1); }

void iterateDirectly(benchmark::State& state)
{
    const std::vector<int> list = ints();
    for (auto _ : state) {
        std::int64_t sum = 0;
        for (const int& number : list) {
            benchmark::DoNotOptimize(&number);
            sum += number;
        }
        benchmark::DoNotOptimize(sum);
    }
}
BENCHMARK(iterateDirectly)->Name("iterate 1000 ints/direct");

void iterateByIndex(benchmark::State& state)
{
    const std::vector<int> list = ints();
    const zu::AnyReference reference = zu::AnyReference::from(list);
    for (auto _ : state) {
        std::int64_t sum = 0;
        for (std::size_t i = 0; i != list.size(); ++i)
            sum += reference._element(i).toInt();
        benchmark::DoNotOptimize(sum);
    }
}
BENCHMARK(iterateByIndex)->Name("iterate 1000 ints/by index");

void iterateByKind(benchmark::State& state)
{
    const std::vector<int> list = ints();
    for (auto _ : state) {
        std::int64_t sum = 0;
        for (const zu::AnyReference number : zu::AnyReference::from(list))
            sum += number.toInt();
        benchmark::DoNotOptimize(sum);
    }
}
BENCHMARK(iterateByKind)->Name("iterate 1000 ints/AnyIterator");

std::vector<std::string> texts(std::int64_t count)
{
    return std::vector<std::string>(static_cast<std::size_t>(count), "a text of thirty-two characters.");
}

void copyToList(benchmark::State& state, std::int64_t count)
{
    const std::vector<std::string> source = texts(count);
    for (auto _ : state)
        benchmark::DoNotOptimize(std::list<std::string>(source.begin(), source.end()));
}

void convertToList(benchmark::State& state, std::int64_t count)
{
    const std::vector<std::string> source = texts(count);
    const zu::AnyReference reference = zu::AnyReference::from(source);
    for (auto _ : state)
        benchmark::DoNotOptimize(reference.to<std::list<std::string>>());
}

const bool g_listsRegistered = [] {
    for (const int count : {1, 10, 100, 1'000}) {
        const std::string name = "vector to list/" + std::to_string(count);
        benchmark::RegisterBenchmark((name + "/copy").c_str(), copyToList, count);
        benchmark::RegisterBenchmark((name + "/convert").c_str(), convertToList, count);
    }
    return true;
}();

void copyToDoubles(benchmark::State& state)
{
    const std::vector<int> source = ints();
    for (auto _ : state)
        benchmark::DoNotOptimize(std::vector<double>(source.begin(), source.end()));
}
BENCHMARK(copyToDoubles)->Name("ints to doubles/1000/copy");

void convertToDoubles(benchmark::State& state)
{
    const std::vector<int> source = ints();
    const zu::AnyReference reference = zu::AnyReference::from(source);
    for (auto _ : state)
        benchmark::DoNotOptimize(reference.to<std::vector<double>>());
}
BENCHMARK(convertToDoubles)->Name("ints to doubles/1000/convert");

using Named = std::map<std::string, zu::AnyValue>;

Named setting() { return {{"name", zu::AnyValue::from("speed")}, {"value", zu::AnyValue::from(5)}}; }

void fillByHand(benchmark::State& state)
{
    const Named source = setting();
    for (auto _ : state) {
        const sample::Setting made{source.at("name").to<std::string>(), source.at("value").to<int>()};
        benchmark::DoNotOptimize(made);
    }
}
BENCHMARK(fillByHand)->Name("map to struct/by hand");

void convertToStruct(benchmark::State& state)
{
    const Named source = setting();
    const zu::AnyReference reference = zu::AnyReference::from(source);
    for (auto _ : state)
        benchmark::DoNotOptimize(reference.to<sample::Setting>());
}
BENCHMARK(convertToStruct)->Name("map to struct/convert");

} // namespace
