#include "process_settings.hpp"

#include <QtCore/QTextCodec>
#include <QtCore/QtGlobal>

namespace zu::cli {

void settleProcess()
{
    // File names are UTF-8 whatever the locale.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    // The library's own messages say what is wrong; Qt's would say it once more.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
}

} // namespace zu::cli
