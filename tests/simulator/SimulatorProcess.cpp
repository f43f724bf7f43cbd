#include "tests/simulator/SimulatorProcess.h"

#include <QRegularExpression>
#include <QTest>
#include <csignal>
#include <sys/prctl.h>

SimulatorProcess::SimulatorProcess(const QStringList &options, const QString &shellCommand)
{
    connect(this, &QProcess::readyReadStandardOutput, this,
            [this] { output += readAllStandardOutput(); });
    connect(this, &QProcess::readyReadStandardError, this,
            [this] { errors += readAllStandardError(); });
    QStringList arguments = options;
    if (!shellCommand.isEmpty())
        arguments << "--"
                  << "sh"
                  << "-c" << shellCommand;
    // Does not outlive a test program that crashes.
    setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); });
    start(ZELL_SIMULATOR, arguments);
}

SimulatorProcess::~SimulatorProcess()
{
    terminate();
    waitForFinished();
}

int SimulatorProcess::status()
{
    const bool ended = QTest::qWaitFor([this] { return state() == NotRunning; }, 30000);
    return ended && exitStatus() == NormalExit ? exitCode() : -1;
}

bool SimulatorProcess::says(const QByteArray &text)
{
    return QTest::qWaitFor([&] { return output.contains(text); }, 10000);
}

QString SimulatorProcess::environmentValue(const QString &variable)
{
    if (!says("export PATH="))
        return {};
    const QRegularExpression line("export " + variable + "='?([^'\n]*)'?\n");
    return line.match(QString::fromUtf8(output)).captured(1);
}

void SimulatorProcess::interrupt(int signalNumber)
{
    ::kill(pid_t(processId()), signalNumber);
}
