#pragma once

#include "simulator/SerialLine.h"
#include "testkit/Environment.h"

/// The serial line of the simulated device, plugged in, with the test at the end of the particle
/// sensor. Any number may follow one another.
class PseudoTerminal : public simulator::SerialLine
{
public:
    PseudoTerminal()
        : SerialLine(Environment::device().serialDevice())
    {
        if (!plugIn())
            qFatal("no pseudo terminal");
    }
};
