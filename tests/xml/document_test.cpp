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

TEST(XmlDocument, ATextIsParsedWithNamespacesAndAFileWithout)
{
    const std::string content = "<a xmlns='urn:x' z:b='1'/>";
    QByteArray bytes = QByteArray::fromStdString(content);
    QBuffer buffer(&bytes);
    ASSERT_TRUE(buffer.open(QIODevice::ReadOnly));
    const Tree text = std::get<Tree>(parse(content));
    const Tree file = std::get<Tree>(parse(buffer));
    EXPECT_EQ(text.root().attribute("b"), "1");
    EXPECT_EQ(text.root().attribute("xmlns"), "");
    EXPECT_EQ(file.root().attribute("b"), "");
    EXPECT_EQ(file.root().attribute("z:b"), "1");
    EXPECT_EQ(file.root().attribute("xmlns"), "urn:x");
}

TEST(XmlDocument, ADeviceIsReadToItsEndPieceByPiece)
{
    Trickle device("<a><b/><c/></a>");
    const Tree tree = std::get<Tree>(parse(device));
    int count = 0;
    for ([[maybe_unused]] const Node child : tree.root().children())
        ++count;
    EXPECT_EQ(count, 2);
}

TEST(XmlDocument, ADeviceInTextModeIsReadByteForByte)
{
    // Of UTF-16, text mode would take out a byte.
    QByteArray bytes("\xff\xfe<\0a\0 \0b\0=\0'\0\x0d\x0d'\0/\0>\0", 22);
    QBuffer buffer(&bytes);
    ASSERT_TRUE(buffer.open(QIODevice::ReadOnly | QIODevice::Text));
    EXPECT_EQ(std::get<Tree>(parse(buffer)).root().attribute("b"), "\u0d0d");
}

TEST(XmlDocument, AFailureHasThePlaceAndTheParsersWords)
{
    const auto failure = std::get<ParseFailure>(parse("<a>\n<b></a>"));
    EXPECT_EQ(failure.line, 2);
    EXPECT_EQ(failure.column, 7);
    EXPECT_EQ(failure.message, "tag mismatch");
}

} // namespace zupackage::xml
