#pragma once

#include <zu/any_value.hpp>

#include <cstdint>
#include <map>
#include <string>
#include <vector>

/// Types that the tests use, each for what it is told to be.
namespace sample {

/// Known as a struct on first use.
struct Point
{
    int x = 0;
    int y = 0;
};
inline bool operator==(const Point& a, const Point& b) { return a.x == b.x && a.y == b.y; }

/// The same names as Point, in another order and with other types.
struct WidePoint
{
    std::int64_t y = 0;
    double x = 0;
};

struct Line
{
    std::string name;
    std::vector<Point> points;
    std::map<std::string, zu::AnyValue> notes;
};

/// Nothing is known of it.
struct Opaque
{
    explicit Opaque(std::string text) : secret(std::move(text)) {}
    std::string secret;
};

struct NotCopyable
{
    NotCopyable() = default;
    NotCopyable(const NotCopyable&) = delete;
    NotCopyable& operator=(const NotCopyable&) = delete;
};

enum class Colour : std::uint8_t
{
    Red = 1,
    Green = 2
};

/// An object class; makeService() registers it.
struct Service
{
    int calls = 0;
};
std::shared_ptr<Service> makeService();

} // namespace sample

template <>
struct zu::StructSchema<sample::Point>
{
    static Schema<sample::Point> describe()
    {
        return {"::sample::Point", {{"x", &sample::Point::x}, {"y", &sample::Point::y}}};
    }
};

template <>
struct zu::StructSchema<sample::WidePoint>
{
    static Schema<sample::WidePoint> describe()
    {
        return {"::sample::WidePoint", {{"y", &sample::WidePoint::y}, {"x", &sample::WidePoint::x}}};
    }
};

template <>
struct zu::StructSchema<sample::Line>
{
    static Schema<sample::Line> describe()
    {
        return {"::sample::Line",
                {{"name", &sample::Line::name}, {"points", &sample::Line::points}, {"notes", &sample::Line::notes}}};
    }
};
