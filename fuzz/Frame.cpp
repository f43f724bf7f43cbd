#include "acquisition/PM25Frame.h"
#include "fuzz/Targets.h"
#include "shell/Global_cfg.h"

#include <QtEndian>

void fuzzFrame(const QByteArray &bytes)
{
    QByteArray frame = bytes;
    const int value = PM2_5_dataHandle(&frame);
    hold(frame == bytes, "decoding leaves the frame as it is");
    if (frame.size() < pm25FrameLength) {
        hold(value == PM25_ERROR_DATA, "a short frame has no value");
        return;
    }
    // Chance does not find a checksum: with the right one the value must come out.
    qToBigEndian(pm25Checksum(frame), frame.data() + pm25FrameLength - 2);
    hold(PM2_5_dataHandle(&frame) == qFromLittleEndian<qint32>(frame.constData() + 16),
         "a frame with its checksum has its value");
}
