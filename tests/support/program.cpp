#include "support/program.hpp"

#include <QtCore/QProcess>

#include <cstdlib>
#include <linux/capability.h>
#include <stdexcept>
#include <sys/prctl.h>
#include <unistd.h>

namespace zu::test {

namespace {

QProcessEnvironment environmentOf(const ProgramSetting& setting)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const auto& [name, value] : setting.environment)
        environment.insert(QString::fromStdString(name), QString::fromStdString(value));
    return environment;
}

/// A program that the rights of files bind, whoever runs it.
class UnprivilegedProcess : public QProcess
{
protected:
    void setupChildProcess() override
    {
        if (geteuid() != 0)
            return;
        for (const int capability : {CAP_DAC_OVERRIDE, CAP_DAC_READ_SEARCH}) {
            if (prctl(PR_CAPBSET_DROP, capability, 0, 0, 0) != 0)
                std::_Exit(126);
        }
    }
};

ProgramResult run(QProcess& process, const std::string& program, const std::vector<std::string>& arguments,
                  const ProgramSetting& setting)
{
    constexpr int k_minute = 60'000;
    QStringList list;
    for (const std::string& argument : arguments)
        list << QString::fromStdString(argument);
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

} // namespace

ProgramResult runProgram(const std::string& program, const std::vector<std::string>& arguments,
                         const ProgramSetting& setting)
{
    QProcess process;
    return run(process, program, arguments, setting);
}

ProgramResult runWithoutPrivileges(const std::string& program, const std::vector<std::string>& arguments)
{
    UnprivilegedProcess process;
    return run(process, program, arguments, {});
}

} // namespace zu::test
