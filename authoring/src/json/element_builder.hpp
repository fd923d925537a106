#pragma once

#include "json/json_form.hpp"
#include "package/package_element.hpp"

#include <cstddef>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace zupackage::authoring {

/// What stands in JSON has no place in a package; the reason is for people.
class JsonRefusal : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Builds the root element of a package from what a JSON parser comes to. What does not fit the form of an element is
/// refused where it begins, so that nothing nests deeper than the vocabulary does. The operations throw JsonRefusal.
class ElementBuilder
{
public:
    ElementBuilder();
    ElementBuilder(const ElementBuilder&) = delete;
    ElementBuilder& operator=(const ElementBuilder&) = delete;

    void startObject();
    void key(const std::string& name);
    void startArray();
    void end(); ///< of an object or an array
    void text(std::string_view text);
    void flag(bool value);
    void number(double value);
    void null();

    /// The way to what the parser came to last, as a JSON pointer.
    std::string pointer() const;

    /// The element, once the JSON is there to its end.
    const PackageElement& root() const { return m_root; }

private:
    /// What a value is.
    enum class Role
    {
        Root,
        FormatVersion,
        Attribute, ///< of the parent
        Child,     ///< an element in the parent
        Children,  ///< all elements of the entry in the parent
        Value,     ///< of an element in a map
        Values,    ///< of the elements with one key
        Name       ///< of a child of the parent
    };

    struct Slot
    {
        Role role = Role::Root;
        PackageElement* parent = nullptr;
        const ElementEntry* entry = nullptr;
        const AttributeEntry* attribute = nullptr;
        std::string key{}; ///< of the element in a map
    };

    /// An object or a list that is not ended yet.
    struct Level
    {
        Slot members; ///< what each value in it is; of an object that is an element a Child, and the entry its own
        bool isObject;
        bool isElement;
        std::string key{}; ///< that was read last, of an object
        bool hasKey = false;
        std::size_t count = 0;         ///< of the values that were begun, of a list
        std::set<std::string> taken{}; ///< the keys of an object, the entries of a list of which each stands there once
    };

    static const char* wanted(const Slot& slot);
    [[noreturn]] static void refuse(const Slot& slot, const char* found);

    Slot takeSlot();
    Slot memberOf(const Level& level, const std::string& name) const;
    PackageElement& addChild(const Slot& slot);
    void addValue(const Slot& slot, std::string_view text);
    void addName(const Slot& slot, std::string_view name);
    static void refuseRepetition(Level& level, const char* what, std::string_view text);
    void open(Slot members, bool isObject, bool isElement = false);
    void spend(std::size_t bytes);

    PackageElement m_root;
    std::vector<Level> m_levels;
    Slot m_member; ///< what the value of the key that was read last is
    bool m_hasFormatVersion = false;
    std::size_t m_markupBytes = 0;
};

} // namespace zupackage::authoring
