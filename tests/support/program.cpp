#include "support/program.hpp"

#include <QtCore/QProcess>

#include <stdexcept>

namespace zu::test {

namespace {

QProcessEnvironment environmentOf(const ProgramSetting& setting)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const auto& [name, value] : setting.environment)
        environment.insert(QString::fromStdString(name), QString::fromStdString(value));
    return environment;
}

} // namespace

ProgramResult runProgram(const std::string& program, const std::vector<std::string>& arguments,
                         const ProgramSetting& setting)
{
    constexpr int k_minute = 60'000;
    QStringList list;
    for (const std::string& argument : arguments)
        list << QString::fromStdString(argument);
    QProcess process;
    process.setProcessEnvironment(environmentOf(setting));
    if (!setting.outputFile.empty())
        process.setStandardOutputFile(QString::fromStdString(setting.outputFile));
    process.start(QString::fromStdString(program), list);
    process.write(setting.input.data(), static_cast<qint64>(setting.input.size()));
    process.closeWriteChannel();
    if (!process.waitForFinished(k_minute) || process.exitStatus() != QProcess::NormalExit)
        throw std::runtime_error(program + " did not end: " + process.errorString().toStdString());
    return {process.exitCode(), process.readAllStandardOutput().toStdString(),
            process.readAllStandardError().toStdString()};
}

} // namespace zu::test
