#include "content.hpp"
#include "number.hpp"

#include <zu/any_value.hpp>
#include <zu/type/struct.hpp>

#include <algorithm>
#include <functional>
#include <string_view>
#include <utility>

namespace zu {

using detail::as;
using detail::CheckedStep;
using detail::Entries;
using detail::Group;

namespace {

template <class T>
int order(const T& a, const T& b)
{
    return std::less<T>()(a, b) ? -1 : std::less<T>()(b, a) ? 1 : 0;
}

int orderOfTexts(std::string_view a, std::string_view b) { return order(a.compare(b), 0); }

int orderOfUnreadable(const AnyReferenceBase& a, const AnyReferenceBase& b)
{
    if (const int different = order(a.type()->info(), b.type()->info()))
        return different;
    if (a.type()->wordSize() != 0)
        return orderOfTexts(detail::bytesInPlace(a), detail::bytesInPlace(b));
    return order(a.address(), b.address());
}

class Comparison
{
public:
    explicit Comparison(bool isForEquality) : m_isForEquality(isForEquality) {}

    int run(const AnyReferenceBase& a, const AnyReferenceBase& b)
    {
        if (detail::isWrapper(a.kind())) {
            const CheckedStep step(m_left, a);
            return run(a.content(), b);
        }
        if (detail::isWrapper(b.kind())) {
            const CheckedStep step(m_right, b);
            return run(a, b.content());
        }
        const Group group = detail::groupOf(a);
        if (const int different = order(group, detail::groupOf(b)))
            return different;
        const CheckedStep left(m_left, a);
        const CheckedStep right(m_right, b);
        return runWithin(group, a, b);
    }

private:
    int runWithin(Group group, const AnyReferenceBase& a, const AnyReferenceBase& b)
    {
        switch (group) {
        case Group::Nothing:
        case Group::Void:
            return 0;
        case Group::Number:
            return detail::compareNumbers(detail::numberOf(a), detail::numberOf(b));
        case Group::Text:
            return orderOfTexts(a.text(), b.text());
        case Group::Raw:
            return orderOfTexts(a.rawBuffer(), b.rawBuffer());
        case Group::Pointer:
            return order(detail::pointeeOf(a), detail::pointeeOf(b));
        case Group::Unreadable:
            return orderOfUnreadable(a, b);
        case Group::List:
        case Group::Map:
        case Group::Tuple:
            break;
        }
        if (a.address() == b.address() && a.type()->info() == b.type()->info())
            return 0;
        if (m_isForEquality && a.size() != b.size())
            return 1;
        return group == Group::List ? runLists(a, b) : group == Group::Map ? runMaps(a, b) : runTuples(a, b);
    }

    int runLists(const AnyReferenceBase& a, const AnyReferenceBase& b)
    {
        AnyIterator left = a.begin();
        AnyIterator right = b.begin();
        const AnyIterator leftEnd = a.end();
        const AnyIterator rightEnd = b.end();
        for (; left != leftEnd && right != rightEnd; ++left, ++right) {
            if (const int different = run(*left, *right))
                return different;
        }
        return order(left != leftEnd, right != rightEnd);
    }

    int runMaps(const AnyReferenceBase& a, const AnyReferenceBase& b)
    {
        const Entries left = sortedEntries(a);
        const Entries right = sortedEntries(b);
        for (std::size_t i = 0; i != std::min(left.size(), right.size()); ++i) {
            if (const int different = runEntries(left[i], right[i]))
                return different;
        }
        return order(left.size(), right.size());
    }

    int runEntries(const Entries::value_type& a, const Entries::value_type& b)
    {
        const int different = run(a.first, b.first);
        return different != 0 ? different : run(a.second, b.second);
    }

    /// The map's own order need not be that of the content.
    Entries sortedEntries(const AnyReferenceBase& map)
    {
        Entries entries = detail::entriesOf(map);
        const bool isForEquality = std::exchange(m_isForEquality, false);
        const auto isBefore = [this](const auto& a, const auto& b) { return runEntries(a, b) < 0; };
        if (!std::is_sorted(entries.begin(), entries.end(), isBefore))
            std::sort(entries.begin(), entries.end(), isBefore);
        m_isForEquality = isForEquality;
        return entries;
    }

    int runTuples(const AnyReferenceBase& a, const AnyReferenceBase& b)
    {
        const auto& left = as<StructTypeInterface>(a);
        const auto& right = as<StructTypeInterface>(b);
        if (const int different = orderOfTexts(left.className(), right.className()))
            return different;
        const std::size_t size = std::min(left.memberCount(), right.memberCount());
        for (std::size_t i = 0; i != size; ++i) {
            if (const int different = run(detail::memberAt(a, i), detail::memberAt(b, i)))
                return different;
        }
        return order(left.memberCount(), right.memberCount());
    }

    bool m_isForEquality; ///< whether it is enough to find that values are different
    Walk m_left;
    Walk m_right;
};

} // namespace

int compare(const AnyReferenceBase& a, const AnyReferenceBase& b) { return Comparison(false).run(a, b); }

bool operator==(const AnyReferenceBase& a, const AnyReferenceBase& b) { return Comparison(true).run(a, b) == 0; }

} // namespace zu
