#include "testkit/Environment.h"

#include <benchmark/benchmark.h>

namespace {
// Debug lines are formatted as in the product, but a terminal's speed is none of its merit.
void dropMessage(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type == QtFatalMsg)
        fprintf(stderr, "%s\n", qPrintable(text));
}
} // namespace

int main(int argc, char *argv[])
{
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QApplication application(argc, argv);
    const Environment environment;
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    qInstallMessageHandler(dropMessage);
    benchmark::RunSpecifiedBenchmarks();
    qInstallMessageHandler(nullptr);
    return 0;
}
