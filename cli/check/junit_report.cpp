#include "check/remarks.hpp"
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
        const bool isControl = character < QChar(' ') && character != QChar('\n');
        if (isControl || character > QChar(0xFFFD))
            character = QChar::ReplacementCharacter;
    }
    return result;
}

struct Counts
{
    std::size_t tests = 0;
    std::size_t failures = 0;
    std::size_t errors = 0;
    std::size_t skipped = 0;
};

std::string placed(const CheckedManifest& manifest, authoring::Place place, const std::string& words)
{
    return manifest.name + ":" + std::to_string(place.line) + ":" + std::to_string(place.column) + ": " + words;
}

/// A suite for each manifest, a failed case for each finding, one that passes for a manifest without any.
class JunitReporter : public CheckReporter
{
public:
    explicit JunitReporter(bool showsSuppressed) : m_showsSuppressed(showsSuppressed), m_writer(&m_suites)
    {
        m_writer.setAutoFormatting(true);
    }

    std::string add(const SearchFailure& failure) override
    {
        addError(failure.path, "unreadable", failure.message);
        return {};
    }

    std::string add(const CheckedManifest& manifest) override
    {
        if (!manifest.failure.empty()) {
            addError(manifest.name, manifest.failureTitle(), manifest.failure);
            return {};
        }
        const std::size_t findings = manifest.report.findings.size();
        const std::size_t suppressed = m_showsSuppressed ? manifest.report.suppressed.size() : 0;
        const std::size_t errors = manifest.writeFailure.empty() ? 0 : 1;
        beginSuite(manifest.name,
                   {std::max<std::size_t>(findings, 1) + suppressed + errors, findings, errors, suppressed});
        if (findings == 0)
            addCase(manifest.name, "no findings");
        for (const Diagnostic& finding : manifest.report.findings)
            addFailure(manifest, finding);
        for (std::size_t i = 0; i < suppressed; ++i)
            addSkipped(manifest, manifest.report.suppressed[i]);
        if (errors > 0)
            addCase(manifest.name, "fixes", "error", manifest.writeFailure);
        addOutput(manifest);
        m_writer.writeEndElement();
        return {};
    }

    std::string finish(const CheckSummary&) override
    {
        std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<testsuites name=\"zupackage check\" tests=\"" +
                           std::to_string(m_all.tests) + "\" failures=\"" + std::to_string(m_all.failures) +
                           "\" errors=\"" + std::to_string(m_all.errors) + "\" skipped=\"" +
                           std::to_string(m_all.skipped) + "\">";
        return text + m_suites.toStdString() + "\n</testsuites>\n";
    }

private:
    void write(const char* attribute, std::string_view value)
    {
        m_writer.writeAttribute(QString::fromLatin1(attribute), fromUtf8(value));
    }

    void beginSuite(std::string_view name, const Counts& counts)
    {
        m_writer.writeStartElement(QStringLiteral("testsuite"));
        write("name", name);
        write("tests", std::to_string(counts.tests));
        write("failures", std::to_string(counts.failures));
        write("errors", std::to_string(counts.errors));
        write("skipped", std::to_string(counts.skipped));
        m_all.tests += counts.tests;
        m_all.failures += counts.failures;
        m_all.errors += counts.errors;
        m_all.skipped += counts.skipped;
    }

    void beginCase(std::string_view manifest, std::string_view name)
    {
        m_writer.writeStartElement(QStringLiteral("testcase"));
        write("classname", manifest);
        write("name", name);
    }

    /// A case that passes.
    void addCase(std::string_view manifest, std::string_view name)
    {
        beginCase(manifest, name);
        m_writer.writeEndElement();
    }

    /// A case with that outcome.
    void addCase(std::string_view manifest, std::string_view name, const char* outcome, std::string_view message)
    {
        beginCase(manifest, name);
        m_writer.writeStartElement(QString::fromLatin1(outcome));
        write("message", message);
        m_writer.writeEndElement();
        m_writer.writeEndElement();
    }

    /// A suite of one case.
    void addError(std::string_view path, std::string_view title, std::string_view message)
    {
        beginSuite(path, {1, 0, 1, 0});
        addCase(path, title, "error", message);
        m_writer.writeEndElement();
    }

    static std::string nameOfCase(const Diagnostic& finding)
    {
        const authoring::Place& place = finding.range.begin;
        return finding.rule + " at " + std::to_string(place.line) + ":" + std::to_string(place.column);
    }

    void addFailure(const CheckedManifest& manifest, const Diagnostic& finding)
    {
        const std::string severity(nameOf(finding.severity));
        beginCase(manifest.name, nameOfCase(finding));
        m_writer.writeStartElement(QStringLiteral("failure"));
        write("type", severity);
        write("message", finding.message);
        m_writer.writeCharacters(fromUtf8(
            placed(manifest, finding.range.begin, severity + ": " + finding.message + " [" + finding.rule + "]")));
        m_writer.writeEndElement();
        m_writer.writeEndElement();
    }

    void addSkipped(const CheckedManifest& manifest, const Diagnostic& finding)
    {
        addCase(manifest.name, nameOfCase(finding), "skipped",
                finding.message + " (" + manifest.reasons.at(finding.rule) + ")");
    }

    /// What there is to say that is no case.
    void addOutput(const CheckedManifest& manifest)
    {
        std::string text;
        for (const ManifestFix& fix : manifest.fixes)
            text += placed(manifest, fix.place, wordsOf(manifest, fix)) + "\n";
        if (const std::string omission = omissionOf(manifest); !omission.empty())
            text += manifest.name + ": " + omission + "\n";
        if (!text.empty())
            m_writer.writeTextElement(QStringLiteral("system-out"), fromUtf8(text));
    }

    bool m_showsSuppressed;
    QByteArray m_suites;
    QXmlStreamWriter m_writer;
    Counts m_all;
};

} // namespace

std::unique_ptr<CheckReporter> junitReporter(bool showsSuppressed)
{
    return std::make_unique<JunitReporter>(showsSuppressed);
}

} // namespace zu::cli
