// Encodes a package for the older remote-call layer, looks into the encoding, and decodes it.

#include <zupackage/package_info.hpp>
#include <zupackage/vxvalue.hpp>

#include <iostream>

int main(int argc, char** argv)
{
    zu::PackageInfo package;
    if (argc != 2 || !package.loadFromManifestFile(argv[1]))
        return 1;

    VX::VXValue value; // Invalid, or an Array: what is in it is replaced
    package.toVXValue(value);

    // By position: pair 0 is the uuid, pair 11 the behaviors, pair 0 of a behavior its path.
    const VX::VXValue& behaviors = value[11][1];
    const std::string& uuid = value[0][1];
    std::cout << uuid << " has " << behaviors.size() << " behaviors:\n";
    for (int i = 0; i < behaviors.size(); ++i)
        std::cout << "  " << behaviors[i][0][1].dump(1) << '\n';

    try {
        const zu::PackageInfo decoded(value);
        std::cout << decoded.behaviors().front().name("en") << '\n';
        value[0][1] = VX::VXValue(5); // a uuid that is no text
        const zu::PackageInfo broken(value);
    } catch (const VX::VXError& error) {
        std::cout << error.what() << '\n';
    }
    return 0;
}
