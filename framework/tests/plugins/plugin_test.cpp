#include "api_implementation.hpp"

#include <zu/registry.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <dlfcn.h>
#include <filesystem>
#include <iterator>
#include <sstream>
#include <tuple>

namespace {

const char* const k_values[] = {"int", "string", "list", "map", "reading", "dynamic"};

std::vector<std::string> pluginFiles()
{
    std::istringstream files(ZU_TEST_PLUGINS);
    return {std::istream_iterator<std::string>(files), {}};
}

/// The plug-ins stay loaded: libraries whose types are in use must.
const plug::Api& load(const std::string& file, int scope)
{
    void* library = dlopen(file.c_str(), RTLD_NOW | scope);
    if (!library)
        throw std::runtime_error(dlerror());
    const auto entry = reinterpret_cast<plug::Entry>(dlsym(library, plug::k_entry));
    if (!entry)
        throw std::runtime_error(dlerror());
    return *entry();
}

} // namespace

class Plugin : public testing::TestWithParam<std::tuple<std::string, int>>
{
protected:
    const plug::Api& m_plugin = load(std::get<0>(GetParam()), std::get<1>(GetParam()));
    const plug::Api& m_host = plug::k_api;
};

TEST_P(Plugin, ValuesPassBothWays)
{
    for (const char* what : k_values) {
        const zu::AnyValue theirs = m_plugin.make(what);
        EXPECT_TRUE(m_host.recognises(what, theirs)) << what;
        EXPECT_TRUE(m_plugin.recognises(what, m_host.make(what))) << what;
        EXPECT_TRUE(m_host.recognises(what, zu::AnyValue(theirs))) << what;
    }
}

TEST_P(Plugin, ValuesPassBetweenPlugins)
{
    for (const std::string& file : pluginFiles()) {
        const plug::Api& other = load(file, std::get<1>(GetParam()));
        for (const char* what : k_values)
            EXPECT_TRUE(other.recognises(what, m_plugin.make(what))) << what << " in " << file;
    }
}

TEST_P(Plugin, TypesAreEqualWhicheverInterfaceDescribesThem)
{
    EXPECT_EQ(m_plugin.typeOfReading()->info(), m_host.typeOfReading()->info());
    EXPECT_EQ(m_plugin.typeOfReading()->info().hash(), m_host.typeOfReading()->info().hash());
    EXPECT_EQ(m_plugin.typeOfReading()->name(), "::plug::Reading");
    EXPECT_NE(zu::findType("::plug::Reading"), nullptr);
}

TEST_P(Plugin, ExceptionsPassBothWays)
{
    EXPECT_EQ(m_host.caughtFrom(m_plugin.fail), "Cannot convert std::string to int");
    EXPECT_EQ(m_plugin.caughtFrom(m_host.fail), "Cannot convert std::string to int");
}

TEST_P(Plugin, ContainersOfOneSideConvertToThoseOfTheOther)
{
    zu::AnyValue target = m_host.make("list");
    zu::convert(zu::AnyValue::from(std::vector<zu::AnyValue>{m_plugin.make("string")}), target.reference());
    EXPECT_EQ(target._element(0).text(), "forty-two");
    zu::AnyValue reading = m_plugin.make("reading");
    reading.reference()._element(0).set("changed by the host");
    EXPECT_EQ(reading.to<plug::Reading>().sensor, "changed by the host");
}

TEST_P(Plugin, TypesOfAnonymousNamespacesAreRefused)
{
    for (const plug::Api* side : {&m_plugin, &m_host}) {
        EXPECT_THAT(side->anonymousRefusal(),
                    testing::StartsWith("plug::(anonymous namespace)::Hidden stands in an anonymous namespace"));
        EXPECT_FALSE(side->registersAnonymous());
    }
    EXPECT_EQ(zu::findType("::plug::Hidden"), nullptr);
}

INSTANTIATE_TEST_SUITE_P(Libraries, Plugin,
                         testing::Combine(testing::ValuesIn(pluginFiles()), testing::Values(RTLD_LOCAL, RTLD_GLOBAL)),
                         [](const auto& test) {
                             const std::filesystem::path file(std::get<0>(test.param));
                             return file.stem().string() +
                                    (std::get<1>(test.param) == RTLD_LOCAL ? "_local" : "_global");
                         });

TEST(Plugins, InterfacesOfOneTypeMayDiffer)
{
    std::vector<const zu::TypeInterface*> interfaces{plug::k_api.typeOfReading()};
    for (const std::string& file : pluginFiles())
        interfaces.push_back(load(file, RTLD_LOCAL).typeOfReading());
    std::sort(interfaces.begin(), interfaces.end());
    EXPECT_NE(std::unique(interfaces.begin(), interfaces.end()), interfaces.begin() + 1)
        << "no two interfaces: the tests above would not show that addresses do not count";
}
