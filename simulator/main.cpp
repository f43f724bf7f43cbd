#include "simulator/Options.h"
#include "simulator/Session.h"

#include <QCoreApplication>
#include <QTextStream>

namespace {
constexpr int badOptions = 2;

int answer(const simulator::OptionsAnswer &answer)
{
    if (!answer.isMistake) {
        QTextStream(stdout) << answer.text;
        return 0;
    }
    QTextStream(stderr) << "zell-simulator: " << answer.text << "\nTry 'zell-simulator --help'.\n";
    return badOptions;
}
} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const auto parsed = simulator::parseOptions(QCoreApplication::arguments());
    if (const auto *text = std::get_if<simulator::OptionsAnswer>(&parsed))
        return answer(*text);

    simulator::Session session(std::get<simulator::Options>(parsed));
    QObject::connect(&session, &simulator::Session::ended, &application, &QCoreApplication::exit,
                     Qt::QueuedConnection);
    session.start();
    return QCoreApplication::exec();
}
