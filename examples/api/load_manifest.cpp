// Reads a manifest into the value model, adds content of one's own to it, and turns it into the list-based model.
#include <zupackage/package_info2.hpp>

#include <iostream>
#include <stdexcept>
#include <vector>

namespace {

void rate(zu::PackageInfo2& package)
{
    for (const zu::BehaviorInfo& behavior : package.behaviors())
        std::cout << behavior.path() << '\n';

    package.contents()["web"] = zu::AnyValue::from(zu::WebInfo{"html"});
    package.web().path += "/index.html";
    package.contents()["ratings"] = zu::AnyValue::from(std::vector<int>{5, 4, 5}); // a kind of one's own

    if (const auto* ratings = package.contents()["ratings"].getIf<std::vector<int>>())
        std::cout << ratings->size() << " ratings, " << package.web().path << '\n';
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 2)
        return 2;
    try {
        zu::PackageInfo2 package = zu::loadManifest(argv[1]);
        rate(package);

        const zu::PackageInfo listBased = package; // without web and ratings
        std::cout << listBased.behaviors().size() << " behaviors, " << listBased.name("en") << '\n';
    } catch (const std::runtime_error& error) {
        std::cerr << error.what() << '\n'; // "Could not open ... for reading."
        return 1;
    }
    return 0;
}
