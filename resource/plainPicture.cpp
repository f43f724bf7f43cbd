// Writes a picture that is read quickly: a PNG file whose rows are neither filtered nor packed. The
// collection packs it, in a way that takes less room and is undone faster.

#include <QDataStream>
#include <QFile>
#include <QImage>

namespace {
quint32 checksum(const QByteArray &bytes)
{
    constexpr quint32 polynomial = 0xEDB88320;
    quint32 sum = 0xFFFFFFFF;
    for (const char byte : bytes) {
        sum ^= quint8(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = (sum >> 1) ^ ((sum & 1) == 1 ? polynomial : 0);
    }
    return ~sum;
}

void writeChunk(QDataStream &file, const QByteArray &name, const QByteArray &content)
{
    const QByteArray bytes = name + content;
    file << quint32(content.size());
    file.writeRawData(bytes.constData(), int(bytes.size()));
    file << checksum(bytes);
}

QByteArray headerOf(const QImage &picture)
{
    constexpr quint8 bitsPerChannel = 8;
    QByteArray header;
    QDataStream stream(&header, QIODevice::WriteOnly);
    stream << quint32(picture.width()) << quint32(picture.height()) << bitsPerChannel
           << quint8(picture.hasAlphaChannel() ? 6 : 2) << quint8(0) << quint8(0) << quint8(0);
    return header;
}

QByteArray rowsOf(const QImage &picture)
{
    QByteArray rows;
    for (int y = 0; y < picture.height(); ++y) {
        rows.append('\0'); // no filter
        rows.append(reinterpret_cast<const char *>(picture.constScanLine(y)),
                    picture.width() * picture.depth() / 8);
    }
    return rows;
}
} // namespace

int main(int, char *argv[])
{
    QImage picture(QString::fromLocal8Bit(argv[1]));
    picture.convertTo(picture.hasAlphaChannel() ? QImage::Format_RGBA8888 : QImage::Format_RGB888);
    QFile file(QString::fromLocal8Bit(argv[2]));
    if (picture.isNull() || !file.open(QIODevice::WriteOnly))
        qFatal("%s cannot become %s", argv[1], argv[2]);
    file.write("\x89PNG\r\n\x1a\n");
    QDataStream stream(&file);
    writeChunk(stream, "IHDR", headerOf(picture));
    // Without the length that Qt puts in front.
    writeChunk(stream, "IDAT", qCompress(rowsOf(picture), 0).mid(int(sizeof(quint32))));
    writeChunk(stream, "IEND", {});
    return 0;
}
