#include "check/report.hpp"
#include "check/severity_names.hpp"

#include <QtCore/QXmlStreamWriter>

namespace zu::cli {

namespace {

using authoring::Diagnostic;

/// As XML can carry it: names of files may hold anything.
QString fromUtf8(std::string_view text)
{
    QString result = QString::fromUtf8(text.data(), static_cast<int>(text.size()));
    for (QChar& character : result) {
        if (character < QChar(' ') && character != QChar('\n'))
            character = QChar::ReplacementCharacter;
    }
    return result;
}

/// A suite for each manifest, a failed case for each finding, one that passes for a manifest without any.
class JunitReporter : public CheckReporter
{
public:
    JunitReporter() : m_writer(&m_suites) { m_writer.setAutoFormatting(true); }

    std::string add(const CheckedManifest& manifest) override
    {
        const std::size_t findings = manifest.report.findings.size();
        const bool isReadable = manifest.failure.empty();
        m_writer.writeStartElement(QStringLiteral("testsuite"));
        write("name", manifest.name);
        write("tests", std::to_string(std::max<std::size_t>(findings, 1)));
        write("failures", std::to_string(findings));
        write("errors", isReadable ? "0" : "1");
        if (!isReadable) {
            begin("unreadable", manifest.name);
            m_writer.writeStartElement(QStringLiteral("error"));
            write("message", manifest.failure);
            m_writer.writeEndElement();
            m_writer.writeEndElement();
        } else if (findings == 0) {
            begin("no findings", manifest.name);
            m_writer.writeEndElement();
        }
        for (const Diagnostic& finding : manifest.report.findings)
            add(manifest, finding);
        m_writer.writeEndElement();
        m_tests += std::max<std::size_t>(findings, 1);
        m_failures += findings;
        m_errors += isReadable ? 0 : 1;
        return {};
    }

    std::string finish(const CheckSummary&) override
    {
        std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<testsuites name=\"zupackage check\" tests=\"" +
                           std::to_string(m_tests) + "\" failures=\"" + std::to_string(m_failures) + "\" errors=\"" +
                           std::to_string(m_errors) + "\">";
        return text + m_suites.toStdString() + "\n</testsuites>\n";
    }

private:
    void write(const char* attribute, std::string_view value)
    {
        m_writer.writeAttribute(QString::fromLatin1(attribute), fromUtf8(value));
    }

    void begin(std::string_view name, std::string_view manifest)
    {
        m_writer.writeStartElement(QStringLiteral("testcase"));
        write("classname", manifest);
        write("name", name);
    }

    void add(const CheckedManifest& manifest, const Diagnostic& finding)
    {
        const std::string place =
            std::to_string(finding.range.begin.line) + ":" + std::to_string(finding.range.begin.column);
        begin(finding.rule + " at " + place, manifest.name);
        m_writer.writeStartElement(QStringLiteral("failure"));
        write("type", nameOf(finding.severity));
        write("message", finding.message);
        m_writer.writeCharacters(fromUtf8(manifest.name + ":" + place + ": " + std::string(nameOf(finding.severity)) +
                                          ": " + finding.message + " [" + finding.rule + "]"));
        m_writer.writeEndElement();
        m_writer.writeEndElement();
    }

    QByteArray m_suites;
    QXmlStreamWriter m_writer;
    std::size_t m_tests = 0;
    std::size_t m_failures = 0;
    std::size_t m_errors = 0;
};

} // namespace

std::unique_ptr<CheckReporter> junitReporter() { return std::make_unique<JunitReporter>(); }

} // namespace zu::cli
