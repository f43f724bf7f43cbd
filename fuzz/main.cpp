#include "fuzz/Targets.h"

#include <QLoggingCategory>
#include <cstddef>
#include <cstdint>

// libFuzzer brings the main function: zell-fuzz CORPUS... with the target's name in
// ZELL_FUZZ_TARGET.

namespace {
void (*run)(const QByteArray &bytes) = nullptr;
}

extern "C" int LLVMFuzzerInitialize(int * /*argc*/, char *** /*argv*/)
{
    // The debug output would fill the disk.
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
    for (const FuzzTarget &target : fuzzTargets()) {
        if (target.name == qgetenv("ZELL_FUZZ_TARGET"))
            run = target.run;
    }
    hold(run, "ZELL_FUZZ_TARGET names a target");
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    run(QByteArray(reinterpret_cast<const char *>(data), qsizetype(size)));
    return 0;
}
