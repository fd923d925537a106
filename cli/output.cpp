#include "output.hpp"

#include "display_width.hpp"

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace zu::cli {

bool writeOutput(std::string_view text)
{
    if (std::fwrite(text.data(), 1, text.size(), stdout) == text.size() && std::fflush(stdout) == 0)
        return true;
    outputFailed();
    return false;
}

void complain(const std::string& message) { std::fprintf(stderr, "zupackage: %s\n", displayed(message).c_str()); }

ExitCode outputFailed()
{
    complain(std::string("cannot write to standard output: ") + std::strerror(errno));
    return k_outputFailed;
}

} // namespace zu::cli
