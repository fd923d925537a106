#include "includes.hpp"
#include "support/files.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <optional>

namespace zu {

namespace {

/// What each file includes.
using Graph = std::map<std::string, std::vector<std::string>>;

/// Follows the includes to the end, keeping the way that it has come.
class CycleSearch
{
public:
    explicit CycleSearch(const Graph& graph) : m_graph(graph) {}

    /// The files of the first cycle found, the first of them again at its end.
    std::optional<std::string> run()
    {
        for (const auto& [file, includes] : m_graph)
            if (auto cycle = follow(file))
                return cycle;
        return std::nullopt;
    }

private:
    std::optional<std::string> follow(const std::string& file)
    {
        const auto before = std::find(m_way.begin(), m_way.end(), file);
        if (before != m_way.end()) {
            std::string cycle;
            for (auto step = before; step != m_way.end(); ++step)
                cycle += *step + " -> ";
            return cycle + file;
        }
        const auto includes = m_graph.find(file);
        if (includes == m_graph.end() || !m_followed.emplace(file, true).second)
            return std::nullopt;
        m_way.push_back(file);
        for (const std::string& next : includes->second)
            if (auto cycle = follow(next))
                return cycle;
        m_way.pop_back();
        return std::nullopt;
    }

    const Graph& m_graph;
    std::vector<std::string> m_way;
    std::map<std::string, bool> m_followed;
};

std::optional<std::string> cycleIn(const Graph& graph) { return CycleSearch(graph).run(); }

Graph includesOfTheProject()
{
    Graph graph;
    for (const std::string& file : test::sourcesAndHeaders())
        for (const test::Include& include : test::includesOf(test::readFile(test::sourcePath(file))))
            graph[file].push_back(test::targetOf(include, file));
    return graph;
}

/// The first #include below the begin of a namespace.
std::optional<std::string> includeBelowTheTop(const std::string& text)
{
    const std::size_t code = text.find("\nnamespace ");
    const auto includes = test::includesOf(text.substr(std::min(code, text.size())));
    return includes.empty() ? std::nullopt : std::optional(includes.front().name);
}

} // namespace

TEST(Structure, NoFileIncludesItselfByAnyWay)
{
    const auto cycle = cycleIn(includesOfTheProject());
    EXPECT_FALSE(cycle) << *cycle;
}

TEST(Structure, IncludesAreFollowedWhereverTheyLead)
{
    const Graph graph = includesOfTheProject();
    for (const auto& [file, includes] : graph)
        EXPECT_THAT(includes, testing::Not(testing::Contains(testing::StartsWith("nowhere/")))) << file;
    EXPECT_THAT(graph.at("framework/include/zu/zu.hpp"), testing::Contains("framework/include/zu/any_value.hpp"));
}

TEST(Structure, ACycleOfIncludesIsFoundAndNamed)
{
    const Graph graph{
        {"a.hpp", {"b.hpp", "c.hpp"}}, {"b.hpp", {}}, {"c.hpp", {"b.hpp", "d.hpp"}}, {"d.hpp", {"c.hpp"}}};
    EXPECT_EQ(cycleIn(graph).value_or("none"), "c.hpp -> d.hpp -> c.hpp");
    EXPECT_EQ(cycleIn({{"a.hpp", {"a.hpp"}}}).value_or("none"), "a.hpp -> a.hpp");
    EXPECT_EQ(cycleIn({{"a.hpp", {"b.hpp", "c.hpp"}}, {"b.hpp", {"c.hpp"}}, {"c.hpp", {}}}).value_or("none"), "none");
}

TEST(Structure, EveryIncludeStandsAtTheTop)
{
    for (const std::string& file : test::sourcesAndHeaders()) {
        const auto include = includeBelowTheTop(test::readFile(test::sourcePath(file)));
        EXPECT_FALSE(include) << file << " includes " << *include << " below its top";
    }
}

TEST(Structure, AnIncludeBelowTheTopIsFound)
{
    EXPECT_EQ(includeBelowTheTop("#include <a>\n\nnamespace zu {\n}\n\n  #include <b>\n").value_or("none"), "b");
    EXPECT_FALSE(includeBelowTheTop("#include <a>\nnamespace zu {\n}\n"));
}

} // namespace zu
