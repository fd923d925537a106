#include "command_line.hpp"

#include <QtCore/QTextCodec>
#include <QtCore/QtGlobal>

namespace {

/// What the library leaves to the process, so that one input gives one output everywhere.
void settleProcess()
{
    // File names are UTF-8 whatever the locale.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    // The library's own messages say what is wrong; Qt's would say it once more.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
}

} // namespace

int main(int argc, char** argv)
{
    settleProcess();
    return zu::cli::runCommandLine(argc, argv);
}
