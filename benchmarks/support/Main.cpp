#include "benchmarks/support/Yardstick.h"
#include "testkit/Environment.h"

namespace {
// Debug lines are formatted as in the product, but a terminal's speed is none of its merit.
void dropMessage(QtMsgType, const QMessageLogContext &, const QString &) {}
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
    return Yardstick::missed() > 0 ? 1 : 0;
}
