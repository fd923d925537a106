#include "check/date.hpp"

#include <QtCore/QDate>
#include <QtCore/QString>

namespace zupackage::check {

bool isDate(std::string_view text)
{
    constexpr std::size_t k_length = 10;
    return text.size() == k_length && QDate::fromString(QString::fromLatin1(text.data(), static_cast<int>(text.size())),
                                                        QStringLiteral("yyyy-MM-dd"))
                                          .isValid();
}

} // namespace zupackage::check
