#pragma once

#include "simulator/SimulatedDevice.h"

#include <QStringList>
#include <chrono>
#include <variant>

namespace simulator {

/// What the command line asks for.
struct Options
{
    QString root; ///< absolute; empty: a temporary folder
    SimulatedDevice::Settings device;
    QStringList command;              ///< empty: run until interrupted
    std::chrono::seconds patience{0}; ///< with a command that gives no beat; 0: any time
};

/// An answer instead of a run.
struct OptionsAnswer
{
    QString text;
    bool isMistake = false; ///< a bad option, to be told on the error output
};

/// Reads the command line @p arguments, the program's name first.
std::variant<Options, OptionsAnswer> parseOptions(const QStringList &arguments);

} // namespace simulator
