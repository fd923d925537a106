#include "support/encodings.hpp"

#include <QtCore/QTextCodec>

namespace zu::test {

std::string encoded(const std::string& utf8, const char* encoding)
{
    const QString text = QString::fromStdString(utf8);
    // Qt's own writes a character too many behind one beyond the basic plane.
    if (std::string_view(encoding).substr(0, 6) == "UTF-32") {
        std::string bytes;
        for (const uint codePoint : text.toUcs4())
            for (int i = 0; i < 4; ++i)
                bytes += static_cast<char>(codePoint >> 8 * (std::string_view(encoding) == "UTF-32LE" ? i : 3 - i));
        return bytes;
    }
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    return QTextCodec::codecForName(encoding)->fromUnicode(text.constData(), text.size(), &state).toStdString();
}

} // namespace zu::test
