#include <zupackage/vxvalue.hpp>

#include <iostream>

int main()
{
    VX::VXValue value;
    value.resizeArray(3);
    value[0] = "volume";
    value[1] = 42;
    value[2] = 0.5F;
    std::cout << value << '\n';

    // What a value converts to by itself is a flag, or a text; numbers are read by name.
    const int volume = value[1].toInt();
    const float speed = value[2].toFloat();
    std::cout << volume << ' ' << speed << '\n';

    // Equal are values of one type with one content.
    std::cout << (value[0] == "volume") << (value[1] == 42) << (value[1] == 42.0F) << '\n';

    try {
        value[0].toInt();
    } catch (const VX::VXError& error) {
        std::cout << error.what() << '\n';
    }
}
