#include "output.hpp"

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

ExitCode outputFailed()
{
    std::fprintf(stderr, "zupackage: cannot write to standard output: %s\n", std::strerror(errno));
    return k_outputFailed;
}

} // namespace zu::cli
