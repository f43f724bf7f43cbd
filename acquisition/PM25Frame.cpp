#include "acquisition/PM25Frame.h"

#include "shell/Global_cfg.h"

#include <QDebug>
#include <QtEndian>

namespace {
constexpr qsizetype summedBytes = 56;
constexpr qsizetype groupLength = 4;
constexpr qsizetype valueOffset = 16;
constexpr qsizetype checksumOffset = 58;
} // namespace

bool isPm25Frame(QByteArrayView bytes)
{
    return bytes.size() == pm25FrameLength && bytes.startsWith("\x5A\xA5");
}

quint16 pm25Checksum(QByteArrayView frame)
{
    if (frame.size() < pm25FrameLength)
        return 0;
    quint16 sum = 0;
    // Kept[checksum-gaps]: the fourth byte of each group and the two before the checksum do not
    // count.
    for (qsizetype group = 0; group < summedBytes; group += groupLength) {
        sum = quint16(sum + quint8(frame[group]) + quint8(frame[group + 1]) +
                      (quint8(frame[group + 2]) << 8));
    }
    return sum;
}

int PM2_5_dataHandle(QByteArray *frame)
{
    const QByteArrayView bytes = frame ? QByteArrayView(*frame) : QByteArrayView();
    const quint16 sum = pm25Checksum(bytes);
    if (bytes.size() < pm25FrameLength ||
        sum != qFromBigEndian<quint16>(bytes.data() + checksumOffset)) {
        qDebug() << "PM2.5 CRC Error = " << sum;
        return PM25_ERROR_DATA;
    }
    const auto value = qFromLittleEndian<quint32>(bytes.data() + valueOffset);
    qDebug() << "接收到PM2.5数据:" << value;
    return int(value);
}
