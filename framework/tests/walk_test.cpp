#include "support/samples.hpp"

#include <zu/conversion.hpp>
#include <zu/walk.hpp>

#include <gtest/gtest.h>

#include <list>

namespace zu {

namespace walktest {

/// A struct that holds structs of its own class.
struct Tree
{
    std::vector<Tree> children;
};

} // namespace walktest

using walktest::Tree;

template <>
struct StructSchema<Tree>
{
    static Schema<Tree> describe() { return {"::walktest::Tree", {{"children", &Tree::children}}}; }
};

namespace {

using Named = std::map<std::string, AnyValue>;
using Values = std::vector<AnyValue>;

/// A tree of so many structs, each the only child of the one before, as maps and lists of AnyValue.
AnyValue treeOfMaps(int structs)
{
    AnyValue tree = AnyValue::from(Named{{"children", AnyValue::from(Values())}});
    for (int i = 1; i != structs; ++i)
        tree = AnyValue::from(Named{{"children", AnyValue::from(Values{tree})}});
    return tree;
}

/// Trees as maps and lists; the children of each are twice the tree before it, by reference.
class DoublingTrees
{
public:
    explicit DoublingTrees(int levels)
    {
        for (int i = 0; i != levels; ++i) {
            std::vector<AnyReference> children;
            if (i != 0)
                children.assign(2, AnyReference::from(m_trees.back()));
            m_trees.push_back({{"children", AnyValue::from(std::move(children))}});
        }
    }

    AnyReference whole() const { return AnyReference::from(m_trees.back()); }

private:
    std::list<Named> m_trees; // where what is referred to stays where it is
};

/// The parts that a walk comes to, or -1 when it is refused.
int partsOf(Walk& walk, const AnyReferenceBase& value)
{
    const Walk::Step step(walk, value);
    if (!step)
        return -1;
    std::vector<AnyReference> inner;
    if (value.kind() == TypeKind::Dynamic)
        inner.push_back(value.content());
    if (value.kind() == TypeKind::List)
        inner.assign(value.begin(), value.end());
    int parts = 1;
    for (const AnyReference& part : inner) {
        const int more = partsOf(walk, part);
        if (more < 0)
            return -1;
        parts += more;
    }
    return parts;
}

} // namespace

TEST(Walk, ContainersAloneCountAsLevels)
{
    // A struct is a level, and the list of its children is one.
    EXPECT_TRUE(treeOfMaps(32).tryTo<Tree>());
    ConversionFailure failure;
    Tree tree;
    EXPECT_FALSE(tryConvert(treeOfMaps(33), AnyReference::from(tree), &failure));
    EXPECT_EQ(failure.reason, "the value is nested deeper than 64 levels");
}

TEST(Walk, StepsTellTheLevel)
{
    const Values list{AnyValue::from(1)};
    Walk walk;
    const Walk::Step outer(walk, AnyReference::from(list));
    EXPECT_EQ(outer.level(), 0);
    const Walk::Step element(walk, AnyReference::from(list[0]));
    EXPECT_EQ(element.level(), 1);
    const Walk::Step number(walk, AnyReference::from(list[0]).content());
    EXPECT_EQ(number.level(), 1);
    EXPECT_EQ(number.refusal(), nullptr);
}

TEST(Walk, WhatIsReferredToAgainAndAgainIsLimited)
{
    const auto few = DoublingTrees(10).whole().to<Tree>();
    EXPECT_EQ(few.children.at(1).children.at(1).children.size(), 2u);
    Tree tree;
    ConversionFailure failure;
    EXPECT_FALSE(tryConvert(DoublingTrees(21).whole(), AnyReference::from(tree), &failure));
    EXPECT_EQ(failure.reason, "the value refers to parts of itself in more than 100000 ways");
}

TEST(Walk, ReferencesToAsManyPartsAsThereAreAreNotLimited)
{
    const std::vector<std::vector<int>> lists(k_maxRepeatedParts / 100, std::vector<int>(20, 1));
    std::vector<AnyReference> references;
    for (const auto& list : lists)
        references.push_back(AnyReference::from(list));
    Walk walk;
    EXPECT_GT(partsOf(walk, AnyReference::from(references)), static_cast<int>(k_maxRepeatedParts / 100 * 20));
}

} // namespace zu
