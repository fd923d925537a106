// Prints every member of a package without knowing any of its types: the walker sees nothing but the type system.
#include <zupackage/package_info2.hpp>

#include <zu/conversion.hpp>
#include <zu/dispatch.hpp>

#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

/// Prints what stands behind a label, from the end of the label's line on.
class Walker final : public zu::TypeVisitor
{
public:
    explicit Walker(int depth = 0) : m_depth(depth) {}

    void visitTuple(const std::string& className, const std::vector<zu::AnyReference>& values,
                    const std::vector<std::string>& names) override
    {
        std::cout << ' ' << className << '\n';
        for (std::size_t i = 0; i != values.size(); ++i)
            print(i < names.size() ? names[i] : std::to_string(i), values[i]);
    }

    void visitList(const zu::AnyReference& list) override
    {
        std::cout << '\n';
        for (const zu::AnyReference element : list)
            print("-", element);
    }

    void visitMap(const zu::AnyReference& map) override
    {
        std::cout << '\n';
        for (const zu::AnyReference entry : map)
            print(entry._element(0).toString(), entry._element(1));
    }

    void visitDynamic(const zu::AnyReference& dynamic) override
    {
        const zu::AnyReference content = dynamic.content();
        if (content.isEmpty())
            std::cout << " nothing\n";
        else
            walk(content);
    }

    void visitInt(std::int64_t number, bool, unsigned byteSize) override
    {
        if (byteSize == 0)
            std::cout << (number != 0 ? " yes\n" : " no\n");
        else
            std::cout << ' ' << number << '\n';
    }

    void visitString(std::string_view text) override { std::cout << " \"" << text << "\"\n"; }
    void visitFloat(double number, unsigned) override { std::cout << ' ' << number << '\n'; }
    void visitRaw(std::string_view bytes) override { std::cout << ' ' << bytes.size() << " bytes\n"; }
    void visitVoid() override { std::cout << " nothing\n"; }
    void visitVarArgs(const zu::AnyReference& arguments) override { visitList(arguments); }
    void visitOptional(const zu::AnyReference& optional) override { visitDynamic(optional); }
    void visitPointer(zu::PointerKind, const zu::AnyReference&) override { std::cout << " a pointer\n"; }
    void visitIterator(const zu::AnyReference&) override { std::cout << " an iterator\n"; }
    void visitObject(const zu::AnyReference&) override { std::cout << " an object\n"; }
    void visitUnknown(const zu::AnyReference& value) override { std::cout << ' ' << value.type()->name() << '\n'; }

    void walk(const zu::AnyReferenceBase& value) const
    {
        if (m_depth == zu::k_maxNesting)
            throw std::length_error("nested too deeply to print");
        Walker inner(m_depth + 1);
        zu::dispatch(value, inner);
    }

private:
    void print(const std::string& label, const zu::AnyReference& value) const
    {
        std::cout << std::string(2 * static_cast<std::size_t>(m_depth), ' ') << label;
        walk(value);
    }

    const int m_depth;
};

/// Any value: a package, its elements, a number.
void printEverythingIn(const zu::AnyReference& value)
{
    std::cout << "value";
    Walker().walk(value);
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 2)
        return 2;
    try {
        const zu::PackageInfo package = zu::loadManifest(argv[1]);
        printEverythingIn(zu::AnyReference::from(package));
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
    return 0;
}
