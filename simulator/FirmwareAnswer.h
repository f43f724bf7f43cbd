#pragma once

#include <QByteArray>
#include <chrono>

namespace simulator {

inline constexpr qint64 kibibyte = 1024;

/// How the firmware server answers.
enum class FirmwareFault {
    None,          ///< the whole package, its length announced
    Refused,       ///< status 403 and no package
    CutOff,        ///< the connection ends halfway
    Stalled,       ///< a few bytes, then nothing more and no end
    Endless,       ///< a body without length that never ends
    UnknownLength, ///< the whole package, its length not announced
    ZeroReport,    ///< an empty body: the client's progress report says 0 bytes
};

/// One answer, independent of sockets: what is sent, how fast, and how it ends.
struct FirmwareAnswer
{
    enum class Ending { Close, Stall };

    QByteArray head;                      ///< status line and headers with the blank line
    qint64 bodySize = 0;                  ///< bytes of body that are really sent; -1 without end
    qint64 chunkSize = 16 * kibibyte;     ///< bytes sent at once
    std::chrono::milliseconds pause{100}; ///< between two chunks
    Ending ending = Ending::Close;
};

/// Path of the package on the server.
inline constexpr auto firmwarePath = "/zell/ZellQt-1.1.pkg";

/// Size of the package in bytes; at the server's pace it takes two and a half seconds.
inline constexpr qint64 firmwareSize = 400 * kibibyte;

/// Gives the answer with @p fault to a GET of the package.
FirmwareAnswer firmwareAnswer(FirmwareFault fault);

/// Gives an answer of status @p status ("404 Not Found") and nothing else.
FirmwareAnswer statusAnswer(const QByteArray &status);

/// Gives the answer to the request head @p request, which ends with the blank line: @p package for
/// a GET of firmwarePath, its head alone for a HEAD, 404 for another path, 405 for another method,
/// 400 for what is no HTTP.
FirmwareAnswer answerTo(const QByteArray &request, const FirmwareAnswer &package);

/// Tells whether @p request asks for the package itself, so that answering it uses up an answer.
bool asksForFirmware(const QByteArray &request);

/// Returns @p size bytes of the package (or of an endless body) from @p offset on.
QByteArray firmwareBytes(qint64 offset, qint64 size);

} // namespace simulator
