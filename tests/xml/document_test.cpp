#include "xml/document.hpp"

#include <QtCore/QBuffer>
#include <gtest/gtest.h>

namespace zupackage::xml {

namespace {

/// Gives what it has in small pieces, as a pipe does.
class Trickle : public QIODevice
{
public:
    explicit Trickle(QByteArray bytes) : m_bytes(std::move(bytes)) { open(ReadOnly | Unbuffered); }
    bool isSequential() const override { return true; }

protected:
    qint64 readData(char* data, qint64 size) override
    {
        const qint64 piece = std::min<qint64>({size, 3, m_bytes.size()});
        std::copy_n(m_bytes.constData(), piece, data);
        m_bytes.remove(0, static_cast<int>(piece));
        return piece;
    }
    qint64 writeData(const char* /*data*/, qint64 /*size*/) override { return -1; }

private:
    QByteArray m_bytes;
};

} // namespace

TEST(XmlDocument, TextIsParsedWithNamespacesAndAFileWithout)
{
    const std::string content = "<a xmlns='urn:x'/>";
    QByteArray bytes = QByteArray::fromStdString(content);
    QBuffer buffer(&bytes);
    ASSERT_TRUE(buffer.open(QIODevice::ReadOnly));
    EXPECT_EQ(std::get<QDomDocument>(parse(content)).documentElement().namespaceURI(), "urn:x");
    EXPECT_EQ(std::get<QDomDocument>(parse(buffer)).documentElement().namespaceURI(), "");
}

TEST(XmlDocument, ADeviceIsReadToItsEndPieceByPiece)
{
    Trickle device("<a><b/><c/></a>");
    EXPECT_EQ(std::get<QDomDocument>(parse(device)).documentElement().childNodes().size(), 2);
}

TEST(XmlDocument, AFailureHasThePlaceAndTheParsersWords)
{
    const auto failure = std::get<ParseFailure>(parse("<a>\n<b></a>"));
    EXPECT_EQ(failure.line, 2);
    EXPECT_EQ(failure.column, 7);
    EXPECT_EQ(failure.message, "tag mismatch");
}

} // namespace zupackage::xml
