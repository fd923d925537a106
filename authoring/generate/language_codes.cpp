// Writes the codes of languages, scripts and countries, as the system's iso-codes data has them, as a C++ source.
#include <cctype>
#include <fstream>
#include <iostream>
#include <nlohmann/json.hpp>
#include <set>
#include <string>

namespace {

using Codes = std::set<std::string>;

std::string lowered(std::string text)
{
    for (char& character : text)
        character = static_cast<char>(std::tolower(static_cast<unsigned char>(character)));
    return text;
}

/// The codes under `key` of every entry of the standard, in lower case.
Codes codes(const std::string& folder, const std::string& standard, const std::string& key)
{
    std::ifstream file(folder + "/iso_" + standard + ".json");
    const nlohmann::json entries = nlohmann::json::parse(file).at(standard);
    Codes result;
    for (const nlohmann::json& entry : entries) {
        if (entry.contains(key))
            result.insert(lowered(entry.at(key)));
    }
    return result;
}

void write(std::ostream& out, const char* name, const Codes& codes)
{
    constexpr std::size_t k_codesALine = 24;
    out << "const std::string_view " << name << " =";
    std::size_t written = 0;
    for (const std::string& code : codes) {
        if (written % k_codesALine == 0)
            out << (written == 0 ? "\n    \"" : "\"\n    \"");
        out << code;
        ++written;
    }
    out << "\";\n\n";
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::cerr << "usage: " << argv[0] << " ISO-CODES-FOLDER OUTPUT\n";
        return 2;
    }
    const std::string folder = argv[1];
    Codes threeLetters = codes(folder, "639-3", "alpha_3");
    threeLetters.merge(codes(folder, "639-5", "alpha_3"));

    std::ofstream out(argv[2]);
    out << "// Written by language_codes from the system's iso-codes data.\n"
           "#include \"check/language_codes.hpp\"\n\n"
           "namespace zupackage::check::codes {\n\n";
    write(out, "k_languagesOfTwoLetters", codes(folder, "639-3", "alpha_2"));
    write(out, "k_languagesOfThreeLetters", threeLetters);
    write(out, "k_scripts", codes(folder, "15924", "alpha_4"));
    write(out, "k_countries", codes(folder, "3166-1", "alpha_2"));
    out << "} // namespace zupackage::check::codes\n";
    return out.flush() ? 0 : 1;
}
