// Wrapping and reading one value, looking up its type, and failing to convert it.
#include "ratio_reporter.hpp"

#include <zu/any_value.hpp>
#include <zu/conversion.hpp>

#include <QVariant>
#include <boost/any.hpp>

#include <any>
#include <atomic>
#include <string>

namespace sample {

struct Requirement
{
    std::string model;
    std::string minimum;
    std::string maximum;
};

} // namespace sample

Q_DECLARE_METATYPE(sample::Requirement)
Q_DECLARE_METATYPE(std::string)

template <>
struct zu::StructSchema<sample::Requirement>
{
    static Schema<sample::Requirement> describe()
    {
        using sample::Requirement;
        return {
            "::sample::Requirement",
            {{"model", &Requirement::model}, {"minimum", &Requirement::minimum}, {"maximum", &Requirement::maximum}}};
    }
};

namespace {

template <class T>
T sampleOf();
template <>
int sampleOf<int>()
{
    return 42;
}
template <>
std::string sampleOf<std::string>()
{
    return "a text that does not fit into the string object itself";
}
template <>
sample::Requirement sampleOf<sample::Requirement>()
{
    return {"a model", "1.0", "2.0"};
}

struct AnyValueHolder
{
    template <class T>
    static zu::AnyValue wrap(const T& value)
    {
        return zu::AnyValue::from(value);
    }
    template <class T>
    static T read(const zu::AnyValue& value)
    {
        return value.to<T>();
    }
};

struct StdAnyHolder
{
    template <class T>
    static std::any wrap(const T& value)
    {
        return value;
    }
    template <class T>
    static T read(const std::any& value)
    {
        return std::any_cast<T>(value);
    }
};

struct BoostAnyHolder
{
    template <class T>
    static boost::any wrap(const T& value)
    {
        return value;
    }
    template <class T>
    static T read(const boost::any& value)
    {
        return boost::any_cast<T>(value);
    }
};

struct QVariantHolder
{
    template <class T>
    static QVariant wrap(const T& value)
    {
        return QVariant::fromValue(value);
    }
    template <class T>
    static T read(const QVariant& value)
    {
        return value.value<T>();
    }
};

template <class Holder, class T>
void wrapAndRead(benchmark::State& state)
{
    T value = sampleOf<T>();
    for (auto _ : state) {
        benchmark::DoNotOptimize(value);
        auto held = Holder::template wrap<T>(value);
        benchmark::DoNotOptimize(held);
        benchmark::DoNotOptimize(Holder::template read<T>(held));
    }
}

BENCHMARK_TEMPLATE(wrapAndRead, AnyValueHolder, int)->Name("int/AnyValue");
BENCHMARK_TEMPLATE(wrapAndRead, StdAnyHolder, int)->Name("int/std::any");
BENCHMARK_TEMPLATE(wrapAndRead, BoostAnyHolder, int)->Name("int/boost::any");
BENCHMARK_TEMPLATE(wrapAndRead, QVariantHolder, int)->Name("int/QVariant");
BENCHMARK_TEMPLATE(wrapAndRead, AnyValueHolder, std::string)->Name("string/AnyValue");
BENCHMARK_TEMPLATE(wrapAndRead, StdAnyHolder, std::string)->Name("string/std::any");
BENCHMARK_TEMPLATE(wrapAndRead, BoostAnyHolder, std::string)->Name("string/boost::any");
BENCHMARK_TEMPLATE(wrapAndRead, QVariantHolder, std::string)->Name("string/QVariant");
BENCHMARK_TEMPLATE(wrapAndRead, AnyValueHolder, sample::Requirement)->Name("struct/AnyValue");
BENCHMARK_TEMPLATE(wrapAndRead, StdAnyHolder, sample::Requirement)->Name("struct/std::any");
BENCHMARK_TEMPLATE(wrapAndRead, BoostAnyHolder, sample::Requirement)->Name("struct/boost::any");
BENCHMARK_TEMPLATE(wrapAndRead, QVariantHolder, sample::Requirement)->Name("struct/QVariant");

std::atomic<const void*> g_pointer{&g_pointer};

void atomicLoad(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(g_pointer.load(std::memory_order_acquire));
}
BENCHMARK(atomicLoad)->Name("typeOf/atomic load");

void cachedTypeOf(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(zu::typeOf<sample::Requirement>());
}
BENCHMARK(cachedTypeOf)->Name("typeOf/cached");

/// What a first look-up takes beside making the interface: the lock and the registry.
void uncachedTypeOf(benchmark::State& state)
{
    const zu::TypeInfo info = zu::TypeInfo::of<sample::Requirement>();
    for (auto _ : state) {
        zu::detail::TypeSlot slot;
        benchmark::DoNotOptimize(slot.get(info, &zu::typeOf<sample::Requirement>));
    }
}
BENCHMARK(uncachedTypeOf)->Name("typeOf/uncached");

const zu::AnyValue g_text = zu::AnyValue::from("text");

void failWithoutThrowing(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(g_text.tryTo<int>());
}
BENCHMARK(failWithoutThrowing)->Name("failure/tryTo");

void failAndTell(benchmark::State& state)
{
    int target = 0;
    for (auto _ : state) {
        zu::ConversionFailure failure;
        benchmark::DoNotOptimize(zu::tryConvert(g_text, zu::AnyReference::from(target), &failure));
    }
}
BENCHMARK(failAndTell)->Name("failure/tryConvert, told why");

void failByThrowing(benchmark::State& state)
{
    for (auto _ : state) {
        try {
            benchmark::DoNotOptimize(g_text.to<int>());
        } catch (const zu::ConversionError& error) {
            benchmark::DoNotOptimize(error.what());
        }
    }
}
BENCHMARK(failByThrowing)->Name("failure/thrown");

/// The floor of every throwing face: a throw of nothing more than a text.
void bareThrow(benchmark::State& state)
{
    for (auto _ : state) {
        try {
            throw std::runtime_error("text");
        } catch (const std::runtime_error& error) {
            benchmark::DoNotOptimize(error.what());
        }
    }
}
BENCHMARK(bareThrow)->Name("failure/bare throw");

std::vector<bench::Target> typeTargets()
{
    return {{"int/AnyValue", "int/QVariant", 1.0},
            {"int/AnyValue", "int/std::any", 0},
            {"int/AnyValue", "int/boost::any", 0},
            {"string/AnyValue", "string/std::any", 0},
            {"string/AnyValue", "string/QVariant", 0},
            {"struct/AnyValue", "struct/std::any", 0},
            {"struct/AnyValue", "struct/QVariant", 0},
            {"typeOf/cached", "typeOf/atomic load", 3.0},
            {"iterate 1000 ints/AnyIterator", "iterate 1000 ints/direct", 0},
            {"iterate 1000 ints/AnyIterator", "iterate 1000 ints/by index", 1.0},
            {"vector to list/1/convert", "vector to list/1/copy", 0},
            {"vector to list/10/convert", "vector to list/10/copy", 0},
            {"vector to list/100/convert", "vector to list/100/copy", 0},
            {"vector to list/1000/convert", "vector to list/1000/copy", 1.3},
            {"ints to doubles/1000/convert", "ints to doubles/1000/copy", 0},
            {"map to struct/convert", "map to struct/by hand", 0},
            {"failure/tryTo", "failure/bare throw", 0.2},
            {"failure/tryConvert, told why", "failure/bare throw", 0},
            {"failure/thrown", "failure/bare throw", 0}};
}

} // namespace

/// Exits with 1 when a target was missed.
int main(int argc, char** argv) { return bench::run(argc, argv, typeTargets()); }
