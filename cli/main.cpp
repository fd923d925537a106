#include "command_line.hpp"

int main(int argc, char** argv) { return zu::cli::runCommandLine(argc, argv); }
