#pragma once

#include "edit/element_layout.hpp"
#include "edit/matching.hpp"
#include "edit/reading.hpp"
#include "edit/value_edits.hpp"

#include <map>
#include <string>
#include <vector>

namespace zupackage::edit {

using Nodes = std::vector<SourceNode>;

/// Something new in a container. Where it is to stand is said by neighbours that stay; by the order of the entries when
/// none is known.
struct Addition
{
    std::size_t entry; ///< the number of its entry among those of the container
    SourceNode target; ///< what it is to read as
    SourceNode moved;  ///< what becomes it; null for what is new
    SourceNode after;
    SourceNode before;
};

/// What is to change in one container, or in several that are read as one.
struct Changes
{
    Edits edits; ///< within what stays
    NodeSet removed;
    NodeSet keptComments; ///< entries of a list: the reader takes every child for one
    std::vector<Addition> additions;
};

/// Finds the edits that make a document read as another one, which the package writer has written.
class Differ
{
public:
    /// @param written the document's package, as the writer writes it.
    Differ(const SourceDocument& document, const SourceDocument& target, std::string_view written);

    /// Makes an element read as another one.
    void element(SourceNode node, SourceNode target, const ElementEntry& entry, Edits& edits) const;

private:
    /// An entry of a list, with what tells it from others.
    struct Item
    {
        SourceNode node;
        std::string identity;
    };
    using Items = std::vector<Item>;
    static Items itemsOf(const Nodes& nodes, const ElementEntry& entry, TextOf textOf);
    /// The first item of each identity; the others are put into `repeated`.
    static Items firstOnes(Items items, Items& repeated);

    /// The nodes of one entry, in the document and in what it is to become.
    struct Sides
    {
        std::size_t number; ///< of the entry among those of the container
        const ElementEntry& entry;
        const Nodes& present;
        const Nodes& wanted;
    };

    /// Whether two entries of a list of the package are known to read alike, from where the two written texts are
    /// equal.
    bool isWrittenAlike(const Items& present, std::size_t presentNumber, const Items& wanted, std::size_t wantedNumber,
                        const ElementEntry& entry) const;
    bool readsAs(SourceNode node, SourceNode target, const ElementEntry& entry) const;
    void attributes(SourceNode node, SourceNode target, const ElementEntry& entry, Edits& edits) const;
    void children(const Nodes& containers, SourceNode target, const ElementEntry& entry, Edits& edits) const;
    void childrenOf(const Sides& sides, Changes& changes) const;

    void section(const Sides& sides, Changes& changes) const;
    void lastOne(const Sides& sides, Changes& changes) const;
    void presence(const Sides& sides, Changes& changes) const;
    void keyed(const Sides& sides, Changes& changes) const;
    void textsOfKeys(const Sides& sides, Changes& changes) const;
    void eachOnce(const Sides& sides, Changes& changes) const;

    /// @param anchor what the list stands behind when nothing of it stays.
    /// @return the last one that stays, else `anchor`.
    SourceNode list(const Sides& sides, const Items& present, const Items& wanted, SourceNode anchor,
                    Changes& changes) const;
    SourceNode become(const Sides& sides, const Items& present, const Items& wanted, std::vector<Match>& matches,
                      SourceNode anchor, Changes& changes) const;
    bool isRenamed(SourceNode node, SourceNode target, const ElementEntry& entry) const;

    const SourceDocument& m_document;
    Layout m_layout;
    std::size_t m_beginningEnd; ///< up to where the target is what is written of the document's package
    std::size_t m_endBegin;     ///< from where on it is
};

} // namespace zupackage::edit
