// The variant and the records' wire form, beside the trees that a program would build instead: the same content as
// nlohmann::json and as a QVariantList.
#include "json_package.hpp"
#include "ratio_reporter.hpp"
#include "sample_packages.hpp"

#include <QtCore/QVariant>

#include <benchmark/benchmark.h>

namespace {

using bench::encoded;
using bench::json;
using bench::jsonOf;
using bench::package;
using VX::VXValue;
using zu::PackageInfo;

/// The tree of a json as a QVariantList.
QVariant qVariantOf(const json& value)
{
    if (value.is_string())
        return QString::fromStdString(value.get<std::string>());
    if (value.is_boolean())
        return value.get<bool>();
    if (!value.is_array())
        return {};
    QVariantList list;
    for (const json& element : value)
        list.append(QVariant::fromValue(qVariantOf(element)));
    return list;
}

/// QVariantList shares its content; a deep copy is one that detaches at every level.
QVariant deepCopy(const QVariant& value)
{
    if (value.type() != QVariant::List)
        return value.type() == QVariant::String ? QVariant(QString(value.toString().constData())) : value;
    QVariantList copy;
    for (const QVariant& element : value.toList())
        copy.append(deepCopy(element));
    return copy;
}

constexpr int k_behaviors = 20;

void encodeToVariant(benchmark::State& state)
{
    PackageInfo source = package(k_behaviors);
    for (auto _ : state)
        benchmark::DoNotOptimize(encoded(source));
}
BENCHMARK(encodeToVariant)->Name("encode/VXValue");

void encodeToJson(benchmark::State& state)
{
    const PackageInfo source = package(k_behaviors);
    for (auto _ : state)
        benchmark::DoNotOptimize(jsonOf(source));
}
BENCHMARK(encodeToJson)->Name("encode/json");

void copyVariant(benchmark::State& state)
{
    PackageInfo source = package(k_behaviors);
    const VXValue value = encoded(source);
    for (auto _ : state)
        benchmark::DoNotOptimize(VXValue(value));
}
BENCHMARK(copyVariant)->Name("deep copy and destroy/VXValue");

void copyJson(benchmark::State& state)
{
    const json value = jsonOf(package(k_behaviors));
    for (auto _ : state) {
        json copy = value;
        benchmark::DoNotOptimize(copy);
    }
}
BENCHMARK(copyJson)->Name("deep copy and destroy/json");

void copyQVariant(benchmark::State& state)
{
    const QVariant value = qVariantOf(jsonOf(package(k_behaviors)));
    for (auto _ : state)
        benchmark::DoNotOptimize(deepCopy(value));
}
BENCHMARK(copyQVariant)->Name("deep copy and destroy/QVariantList");

void encodePackage(benchmark::State& state)
{
    PackageInfo source = package(static_cast<int>(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(encoded(source));
}
BENCHMARK(encodePackage)->Name("toVXValue")->Arg(1)->Arg(10)->Arg(100)->Arg(1000);

void encodePackageToJson(benchmark::State& state)
{
    const PackageInfo source = package(static_cast<int>(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(jsonOf(source));
}
BENCHMARK(encodePackageToJson)->Name("to json")->Arg(100)->Arg(1000);

void decodePackage(benchmark::State& state)
{
    PackageInfo source = package(static_cast<int>(state.range(0)));
    const VXValue value = encoded(source);
    for (auto _ : state)
        benchmark::DoNotOptimize(PackageInfo(value));
}
BENCHMARK(decodePackage)->Name("decode")->Arg(1)->Arg(10)->Arg(100)->Arg(1000);

void compareVariants(benchmark::State& state)
{
    PackageInfo source = package(100);
    const VXValue left = encoded(source);
    const VXValue right = encoded(source);
    for (auto _ : state)
        benchmark::DoNotOptimize(left == right);
}
BENCHMARK(compareVariants)->Name("equality/VXValue");

void compareJson(benchmark::State& state)
{
    const PackageInfo source = package(100);
    const json left = jsonOf(source);
    const json right = jsonOf(source);
    for (auto _ : state)
        benchmark::DoNotOptimize(left == right);
}
BENCHMARK(compareJson)->Name("equality/json");

/// The worst that its text can be: four characters for each byte.
const std::vector<unsigned char>& manyBytes()
{
    static const std::vector<unsigned char> bytes(1024 * 1024, 255);
    return bytes;
}

void failForBinary(benchmark::State& state)
{
    const VXValue value(manyBytes().data(), manyBytes().size());
    for (auto _ : state) {
        try {
            value.xAssertType(VXValue::Type::Array);
        } catch (const VX::VXError& error) {
            benchmark::DoNotOptimize(error.what());
        }
    }
}
BENCHMARK(failForBinary)->Name("type error of 1 MiB/VXError");

void appendBytes(benchmark::State& state)
{
    for (auto _ : state) {
        std::string text;
        for (const unsigned char byte : manyBytes())
            (text += '\\') += std::to_string(byte);
        benchmark::DoNotOptimize(text.data());
    }
}
BENCHMARK(appendBytes)->Name("type error of 1 MiB/its bytes appended");

// Growth has no target here: 1,000 behaviors leave the caches that 100 fit into, so that any tree grows by more than
// ten times. `instructions` has one.
std::vector<bench::Target> targets()
{
    return {{"encode/VXValue", "encode/json", 1.0},
            {"deep copy and destroy/VXValue", "deep copy and destroy/json", 1.0},
            {"deep copy and destroy/VXValue", "deep copy and destroy/QVariantList", 0},
            {"equality/VXValue", "equality/json", 1.3},
            {"type error of 1 MiB/VXError", "type error of 1 MiB/its bytes appended", 1.0},
            {"toVXValue/10", "toVXValue/1", 0},
            {"toVXValue/100", "toVXValue/10", 0},
            {"toVXValue/1000", "toVXValue/100", 0},
            {"to json/1000", "to json/100", 0},
            {"toVXValue/1000", "to json/1000", 1.0},
            {"decode/10", "decode/1", 0},
            {"decode/100", "decode/10", 0},
            {"decode/1000", "decode/100", 0}};
}

} // namespace

/// Exits with 1 when a target was missed.
int main(int argc, char** argv) { return bench::run(argc, argv, targets()); }
