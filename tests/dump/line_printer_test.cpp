#include "support/generated_packages.hpp"
#include "support/plain_dump.hpp"
#include "support/property.hpp"
#include "support/whole_package.hpp"

#include <functional>
#include <iomanip>
#include <sstream>
#include <stdexcept>

// What is printed line by line is compared with each text inserted by itself.
namespace zu {

namespace {

/// Takes so many characters and so many flushes, and then refuses or throws.
class LimitedBuffer : public std::streambuf
{
public:
    LimitedBuffer(std::size_t mostCharacters, int mostFlushes, bool throws)
        : m_mostCharacters(mostCharacters), m_mostFlushes(mostFlushes), m_throws(throws)
    {
    }

    const std::string& text() const { return m_text; }
    int flushes() const { return m_flushes; }

protected:
    int_type overflow(int_type c) override
    {
        if (m_text.size() == m_mostCharacters)
            return refuse();
        m_text += traits_type::to_char_type(c);
        return c;
    }

    int sync() override { return m_flushes++ == m_mostFlushes ? refuse() : 0; }

private:
    int refuse() const
    {
        if (m_throws)
            throw std::domain_error("refused");
        return -1;
    }

    std::string m_text;
    int m_flushes = 0;
    std::size_t m_mostCharacters;
    int m_mostFlushes;
    bool m_throws;
};

using Print = std::function<void(std::ostream& out, const PackageInfo& package)>;
using Prepare = std::function<void(std::ostream& out)>;

/// All that a caller can see of printing a package to a stream whose buffer takes no more than that.
std::string outcome(const Print& print, const PackageInfo& package, LimitedBuffer& buffer, const Prepare& prepare)
{
    std::ostringstream seen;
    std::ostream out(&buffer);
    try {
        prepare(out);
        print(out, package);
    } catch (const std::domain_error& error) {
        seen << "refused ";
    } catch (const std::ios::failure& error) {
        seen << "failed ";
    }
    seen << out.rdstate() << ' ' << out.width() << ' ' << buffer.flushes() << '\n' << buffer.text();
    return seen.str();
}

void printByOperator(std::ostream& out, const PackageInfo& package) { out << package; }

void expectTheSame(const PackageInfo& package, std::size_t characters, int flushes, bool throws, const Prepare& prepare)
{
    LimitedBuffer ours(characters, flushes, throws);
    LimitedBuffer plain(characters, flushes, throws);
    ASSERT_EQ(outcome(printByOperator, package, ours, prepare), outcome(test::plainDump, package, plain, prepare))
        << characters << " characters, " << flushes << " flushes" << (throws ? ", throws" : "");
}

constexpr std::size_t k_manyCharacters = 1'000'000;
constexpr int k_manyFlushes = 1'000'000;

const std::pair<const char*, Prepare> k_exceptions[] = {
    {"none", [](std::ostream& /*out*/) {}},
    {"bad", [](std::ostream& out) { out.exceptions(std::ios::badbit); }},
    {"fail", [](std::ostream& out) { out.exceptions(std::ios::failbit); }},
    {"all", [](std::ostream& out) { out.exceptions(std::ios::badbit | std::ios::failbit | std::ios::eofbit); }},
};

} // namespace

TEST(LinePrinter, GeneratedPackagesArePrintedAlike)
{
    test::checkProperty(1'000, [] {
        const PackageInfo package = *test::packages(test::byteStrings(), test::byteStrings());
        std::ostringstream ours;
        std::ostringstream plain;
        ours << package;
        test::plainDump(plain, package);
        RC_ASSERT(ours.str() == plain.str());
    });
}

TEST(LinePrinter, TheFormatOfTheStreamHasTheSameEffect)
{
    const Prepare formats[] = {
        [](std::ostream& out) { out << std::setw(30) << std::setfill('*'); },
        [](std::ostream& out) { out << std::setw(30) << std::left; },
        [](std::ostream& out) { out << std::boolalpha << std::hex << std::showpos << std::setfill('*'); },
        [](std::ostream& out) { out << std::unitbuf; },
        [](std::ostream& out) { out.setstate(std::ios::badbit); },
        [](std::ostream& out) { out.setstate(std::ios::failbit); },
        [](std::ostream& out) { out.setstate(std::ios::eofbit); },
        [](std::ostream& out) { out << std::setw(30) << std::unitbuf; },
    };
    for (const Prepare& format : formats)
        for (const PackageInfo& package : {test::wholePackage(), PackageInfo()})
            expectTheSame(package, k_manyCharacters, k_manyFlushes, false, format);
}

TEST(LinePrinter, ABufferThatIsFullAfterAnyCharacterLeavesTheSame)
{
    const PackageInfo package = test::wholePackage();
    std::ostringstream all;
    all << package;
    for (const auto& [name, exceptions] : k_exceptions)
        for (std::size_t characters = 0; characters <= all.str().size(); ++characters)
            for (const bool throws : {false, true}) {
                SCOPED_TRACE(name);
                expectTheSame(package, characters, k_manyFlushes, throws, exceptions);
            }
}

TEST(LinePrinter, AFlushThatFailsAfterAnyLineLeavesTheSame)
{
    for (const auto& [name, exceptions] : k_exceptions)
        for (int flushes = 0; flushes < 100; ++flushes)
            for (const bool throws : {false, true}) {
                SCOPED_TRACE(name);
                expectTheSame(test::wholePackage(), k_manyCharacters, flushes, throws, exceptions);
            }
}

} // namespace zu
