#include "simulator/FirmwareAnswer.h"

#include <QList>
#include <QUrl>

using namespace std::chrono_literals;

namespace simulator {
namespace {
// The product logs the body up to its first zero byte: a readable title, then binary.
constexpr QByteArrayView packageTitle("ZellQt 1.1 package\n\0", 20);

struct RequestLine
{
    QByteArray method;
    QByteArray path;
};

// Empty where the request is no HTTP.
RequestLine requestLine(const QByteArray &request)
{
    const QList<QByteArray> words = request.first(request.indexOf("\r\n")).split(' ');
    if (words.size() != 3 || !words.last().startsWith("HTTP/1."))
        return {};
    return {words.first(), QUrl::fromEncoded(words.at(1)).path(QUrl::FullyDecoded).toUtf8()};
}

QByteArray headOf(const QByteArray &status, const QByteArray &headers)
{
    return "HTTP/1.1 " + status +
           "\r\n"
           "Content-Type: application/octet-stream\r\n"
           "Connection: close\r\n" +
           headers + "\r\n";
}

QByteArray lengthHeader(qint64 size)
{
    return "Content-Length: " + QByteArray::number(size) + "\r\n";
}
} // namespace

FirmwareAnswer statusAnswer(const QByteArray &status)
{
    return {.head = headOf(status, lengthHeader(0))};
}

FirmwareAnswer firmwareAnswer(FirmwareFault fault)
{
    FirmwareAnswer answer{.head = headOf("200 OK", lengthHeader(firmwareSize)),
                          .bodySize = firmwareSize};
    switch (fault) {
    case FirmwareFault::None:
        break;
    case FirmwareFault::Refused:
        return statusAnswer("403 Forbidden");
    case FirmwareFault::CutOff:
        answer.bodySize = firmwareSize / 2;
        break;
    case FirmwareFault::Stalled:
        answer.bodySize = answer.chunkSize;
        answer.ending = FirmwareAnswer::Ending::Stall;
        break;
    case FirmwareFault::Endless:
        answer.head = headOf("200 OK", {});
        answer.bodySize = -1;
        answer.chunkSize = 256 * kibibyte;
        answer.pause = 50ms;
        break;
    case FirmwareFault::UnknownLength:
        answer.head = headOf("200 OK", {});
        break;
    case FirmwareFault::ZeroReport:
        // With the length left out a client may take the early end for a lost connection and ask
        // again.
        return statusAnswer("200 OK");
    }
    return answer;
}

bool asksForFirmware(const QByteArray &request)
{
    const RequestLine line = requestLine(request);
    return line.method == "GET" && line.path == firmwarePath;
}

FirmwareAnswer answerTo(const QByteArray &request, const FirmwareAnswer &package)
{
    const RequestLine line = requestLine(request);
    if (line.method.isEmpty())
        return statusAnswer("400 Bad Request");
    if (line.method != "GET" && line.method != "HEAD")
        return statusAnswer("405 Method Not Allowed");
    if (line.path != firmwarePath)
        return statusAnswer("404 Not Found");
    if (line.method == "HEAD")
        return {.head = package.head};
    return package;
}

QByteArray firmwareBytes(qint64 offset, qint64 size)
{
    QByteArray bytes(qsizetype(size), '\0');
    qint64 place = offset;
    for (char &byte : bytes) {
        byte = place < packageTitle.size() ? packageTitle[qsizetype(place)]
                                           : char(quint64(place) * 2654435761U >> 8);
        ++place;
    }
    return bytes;
}

} // namespace simulator
