#include "support/variants.hpp"

#include <limits>
#include <ostream>
#include <rapidcheck.h>
#include <utility>

using VX::VXValue;

namespace VX {

void PrintTo(const VXValue& value, std::ostream* out) { *out << '\n' << zu::test::layout(value); }

} // namespace VX

namespace zu::test {

namespace {

constexpr int k_depth = 5;

const std::vector<std::string> k_texts = {"",
                                          "en",
                                          "a text",
                                          "path",
                                          "nature",
                                          "names",
                                          "descriptions",
                                          "tags",
                                          "uuid",
                                          "topics",
                                          "permissions",
                                          "triggerSentences",
                                          "loadingResponses",
                                          "conditions",
                                          "fr",
                                          "b",
                                          "locale",
                                          "executable é",
                                          "userRequestable",
                                          "categories",
                                          std::string("\0", 1)};

/// From rare ones to those of pairs, requirements and whole records.
const std::vector<int> k_sizes = {0, 1, 1, 2, 2, 2, 2, 2, 3, 4, 5, 7};
const std::vector<int> k_rootSizes = {0, 1, 2, 3, 3, 3, 4, 5, 5, 6, 10, 11, 17, 18, 19, 20, 21};

/// From 0 to `count` - 1, whatever the size of the input is: a plain inRange() gives little but 0 at small sizes.
int below(int count) { return *rc::gen::resize(rc::kNominalSize, rc::gen::inRange(0, count)); }

VXValue leaf()
{
    switch (static_cast<VXValue::Type>(*rc::gen::element(0, 2, 3, 4, 5, 5, 5, 5, 6, 7, 7))) {
    case VXValue::Type::Bool:
        return *rc::gen::arbitrary<bool>();
    case VXValue::Type::Int:
        return *rc::gen::element(0, 1, -1, 42, std::numeric_limits<int>::max());
    case VXValue::Type::Float:
        return *rc::gen::element(0.0F, -1.5F, 3e38F);
    case VXValue::Type::String:
        return *rc::gen::elementOf(k_texts);
    case VXValue::Type::Object:
        return objectWithoutStorage();
    case VXValue::Type::Binary:
        return binary(*rc::gen::elementOf(k_texts));
    case VXValue::Type::Array:
    case VXValue::Type::Invalid:
        break;
    }
    return {};
}

VXValue tree(int depth, const std::vector<int>& sizes)
{
    // Fewer arrays further down, so that a tree stays small.
    if (depth == k_depth || (depth > 0 && below(k_depth) < depth))
        return leaf();
    std::vector<VXValue> elements(static_cast<std::size_t>(*rc::gen::elementOf(sizes)));
    for (VXValue& element : elements)
        element = tree(depth + 1, k_sizes);
    // Mostly keys where keys are wanted, so that readers get beyond them.
    if (depth > 0 && elements.size() == 2 && below(4) != 0)
        elements[0] = *rc::gen::elementOf(k_texts);
    return array(std::move(elements));
}

/// A copy of objects is refused, so that arrays are taken apart by moving.
std::vector<VXValue> takeApart(VXValue& array)
{
    std::vector<VXValue> elements;
    for (int i = 0; i < array.size(); ++i)
        elements.push_back(std::move(array[i]));
    return elements;
}

void mutate(VXValue& value)
{
    if (value.type() != VXValue::Type::Array || value.size() == 0 || below(6) == 0) {
        value = anyVariant();
        return;
    }
    const int index = below(value.size());
    if (below(3) != 0)
        return mutate(value[index]);
    std::vector<VXValue> elements = takeApart(value);
    const auto place = elements.begin() + index;
    if (*rc::gen::arbitrary<bool>())
        elements.erase(place);
    else // nothing happens to one that holds an Object without storage
        errorOf([&] { elements.insert(place, VXValue(*place)); });
    value = array(std::move(elements));
}

std::string leafText(const VXValue& value)
{
    if (value.type() == VXValue::Type::String)
        return " \"" + static_cast<const std::string&>(value) + '"';
    return value.type() == VXValue::Type::Invalid ? std::string() : " " + value.dump(1);
}

void layOut(const VXValue& value, const std::string& indent, const std::string& position, std::string& text)
{
    const bool isArray = value.type() == VXValue::Type::Array;
    text += indent + position + VXValue::TypeToString(value.type());
    text += isArray ? " of " + std::to_string(value.size()) : leafText(value);
    text += '\n';
    for (int i = 0; isArray && i < value.size(); ++i)
        layOut(value[i], indent + "  ", std::to_string(i) + ": ", text);
}

} // namespace

VXValue array(std::vector<VXValue> elements)
{
    VXValue value;
    value.resizeArray(static_cast<int>(elements.size()));
    for (std::size_t i = 0; i < elements.size(); ++i)
        value[static_cast<int>(i)] = std::move(elements[i]);
    return value;
}

VXValue textArray(std::initializer_list<const char*> texts)
{
    return array(std::vector<VXValue>(texts.begin(), texts.end()));
}

VXValue pair(const std::string& key, VXValue value)
{
    VXValue pair;
    pair.resizeArray(2);
    pair[0] = VXValue(key);
    pair[1] = std::move(value);
    return pair;
}

VXValue binary(std::string_view bytes) { return {bytes.data(), bytes.size()}; }

VXValue objectWithoutStorage()
{
    VXValue value;
    value.xAssertCompatibleType(VXValue::Type::Object);
    return value;
}

std::vector<VXValue> elementsOf(const VXValue& array)
{
    std::vector<VXValue> elements;
    for (int i = 0; i < array.size(); ++i)
        elements.push_back(array[i]);
    return elements;
}

std::string layout(const VXValue& value)
{
    std::string text;
    layOut(value, {}, {}, text);
    return text;
}

VXValue anyVariant() { return tree(0, k_rootSizes); }

VXValue mutated(const VXValue& value)
{
    VXValue copy = value;
    for (int count = 1 + below(4); count > 0; --count)
        mutate(copy);
    return copy;
}

std::string errorText(const std::string& method, const std::string& message)
{
    const std::string text = "\tVXValue::" + method + "\n\t" + message;
    return text.c_str(); // what() ends at a zero
}

std::string typeError(const std::string& expected, const std::string& received, const std::string& contents)
{
    return errorText("xAssertType: type error", "Expected a " + expected + " but received a " + received +
                                                    " (vxvalue contents: " + contents + " )");
}

std::vector<Leaf> leaves()
{
    return {
        {{}, "Invalid", "", "", ""},
        {true, "Bool", "true", "Bool:true", "Bool:true"},
        {false, "Bool", "false", "Bool:false", "Bool:false"},
        {42, "Int", "42", "Int: 0x0000002A (42)", "Int: 0x0000002A (42)\n"},
        {-1, "Int", "-1", "Int: 0xFFFFFFFF (-1)", "Int: 0xFFFFFFFF (-1)\n"},
        {std::numeric_limits<int>::min(), "Int", "-2147483648", "Int: 0x80000000 (-2147483648)",
         "Int: 0x80000000 (-2147483648)\n"},
        {1.5F, "Float", "1.5", "Float: 1.5", "Float: 1.5\n"},
        {0.1F, "Float", "0.1", "Float: 0.1", "Float: 0.1\n"},
        {1234567.0F, "Float", "1.23457e+06", "Float: 1.23457e+06", "Float: 1.23457e+06\n"},
        {-0.0F, "Float", "-0", "Float: -0", "Float: -0\n"},
        {std::numeric_limits<float>::infinity(), "Float", "inf", "Float: inf", "Float: inf\n"},
        {"", "String", "\"\"", "String of size 0: \"\"", "String of size 0: \"\"\n"},
        {"a\"b\n", "String", "\"a\"b\n\"", "String of size 4: \"a\"b\n\"", "String of size 4: \"a\"b\n\"\n"},
        {std::string("\0", 1), "String", std::string("\"\0\"", 3), std::string("String of size 1: \"\0\"", 21),
         std::string("String of size 1: \"\0\"\n", 22)},
        {VXValue("\0\n", 2), "Binary", "\\0\\10", "\\0\\10</Binary>\n",
         "\n<Binary>Binary: 2 bytes(s):\n\\0\\10</Binary>\n"},
        {binary("\x01\xff"), "Binary", "\\1\\255", "\\1\\255</Binary>\n",
         "\n<Binary>Binary: 2 bytes(s):\n\\1\\255</Binary>\n"},
        {binary(""), "Binary", "", "</Binary>\n", "\n<Binary>Binary: 0 bytes(s):\n</Binary>\n"},
    };
}

} // namespace zu::test
