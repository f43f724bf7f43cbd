#include "simulator/Options.h"

#include <QCommandLineParser>
#include <QDir>
#include <cmath>

namespace simulator {
namespace {
// Beyond this a day passes in less than a tenth of a second.
constexpr double highestSpeed = 1e6;
constexpr uint longestPatience = 3600;

OptionsAnswer mistake(const QString &text)
{
    return {.text = text, .isMistake = true};
}

QString scenarioNames()
{
    QStringList names;
    for (const Scenario &scenario : scenarios())
        names.append(scenario.name);
    return names.join(QLatin1String(", "));
}

QString scenarioList()
{
    QString list;
    for (const Scenario &scenario : scenarios()) {
        list += QStringLiteral("%1 %2\n").arg(scenario.name, -14).arg(scenario.summary);
        if (scenario.firmware.size() > 1)
            list += QStringLiteral("%1 one of them only: %2:FAULT with\n%1 %3\n")
                        .arg(QString(), -14)
                        .arg(scenario.name, firmwareFaultNames().join(QLatin1String(", ")));
    }
    return list;
}

void describe(QCommandLineParser &parser)
{
    const QString defaultScenario = scenarios().first().name;
    parser.setApplicationDescription(QStringLiteral(
        "Plays the device for the program: sensors, backlight, Wi-Fi scan and firmware server."));
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    parser.addOptions({
        {"root", "Folder of the device's files; a temporary one by default.", "DIR"},
        {"scenario", "What the device goes through.", "NAME", defaultScenario},
        {"speed", "How much faster than the clock the sensors' curves run.", "N", "1"},
        {"seed", "Start of the random numbers; the same seed gives the same run.", "N", "1"},
        {"watchdog", "Starts a command anew that gives no beat for so long.", "SECONDS", "0"},
        {"list", "Lists the scenarios."},
        {{"h", "help"}, "Shows this help."},
    });
    parser.addPositionalArgument("COMMAND", "The program to run, with its arguments.",
                                 "[-- COMMAND ...]");
}
} // namespace

std::variant<Options, OptionsAnswer> parseOptions(const QStringList &arguments)
{
    QCommandLineParser parser;
    describe(parser);
    if (!parser.parse(arguments))
        return mistake(parser.errorText());
    if (parser.isSet("help"))
        return OptionsAnswer{.text = parser.helpText()};
    if (parser.isSet("list"))
        return OptionsAnswer{.text = scenarioList()};

    const auto scenario = findScenario(parser.value("scenario"));
    if (!scenario)
        return mistake(QStringLiteral("unknown scenario \"%1\"; there are %2")
                           .arg(parser.value("scenario"), scenarioNames()));
    bool isNumber = false;
    const double speed = parser.value("speed").toDouble(&isNumber);
    if (!isNumber || !(speed > 0 && speed <= highestSpeed))
        return mistake(QStringLiteral("--speed takes a number above 0, at most %1, not \"%2\"")
                           .arg(highestSpeed, 0, 'f', 0)
                           .arg(parser.value("speed")));
    const quint32 seed = parser.value("seed").toUInt(&isNumber);
    if (!isNumber)
        return mistake(
            QStringLiteral("--seed takes a whole number from 0 to 4294967295, not \"%1\"")
                .arg(parser.value("seed")));
    const uint patience = parser.value("watchdog").toUInt(&isNumber);
    if (!isNumber || patience > longestPatience)
        return mistake(QStringLiteral("--watchdog takes a whole number up to %1, not \"%2\"")
                           .arg(longestPatience)
                           .arg(parser.value("watchdog")));
    if (parser.isSet("root") && parser.value("root").isEmpty())
        return mistake(QStringLiteral("--root takes a folder"));

    const QString root = parser.value("root");
    return Options{.root =
                       root.isEmpty() ? QString() : QDir::cleanPath(QDir().absoluteFilePath(root)),
                   .device = {.scenario = *scenario, .speed = speed, .seed = seed},
                   .command = parser.positionalArguments(),
                   .patience = std::chrono::seconds(patience)};
}

} // namespace simulator
