#include "command.hpp"
#include "commands/show.hpp"

#include <CLI/CLI.hpp>
#include <QtCore/QTextCodec>
#include <QtCore/QtGlobal>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <iostream>

namespace zu::cli {

namespace {

/// What the library leaves to the process, so that one input gives one output everywhere.
void settleProcess()
{
    // File names are UTF-8 whatever the locale.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    // The library's own messages say what is wrong; Qt's would say it once more.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
}

ExitCode outputFailed()
{
    std::fprintf(stderr, "zupackage: cannot write to standard output: %s\n", std::strerror(errno));
    return k_outputFailed;
}

int run(int argc, char** argv)
{
    CLI::App app("Works with the packages of the robot middleware.", "zupackage");
    app.set_version_flag("--version", "zupackage " ZUPACKAGE_VERSION);
    app.require_subcommand(1);
    ExitCode result = k_success;
    for (const Command& command : {k_show}) {
        CLI::App* subcommand = app.add_subcommand(command.name, command.summary);
        subcommand->callback([&result, runCommand = command.prepare(*subcommand)] { result = runCommand(); });
    }
    app.footer("Exit codes: 0 done, 1 standard output failed, 2 wrong usage, 3 something could not be read.");
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        if (app.exit(error) != 0)
            return k_usage;
        return std::cout.flush() ? k_success : outputFailed();
    }
    return result;
}

} // namespace

bool writeOutput(std::string_view text)
{
    if (std::fwrite(text.data(), 1, text.size(), stdout) == text.size() && std::fflush(stdout) == 0)
        return true;
    outputFailed();
    return false;
}

} // namespace zu::cli

int main(int argc, char** argv)
{
    zu::cli::settleProcess();
    return zu::cli::run(argc, argv);
}
