// The calls of the C library through which Qt and SQLite work on files, and the one that looks up
// names, each with the faults that the environment asks for. docs/simulator.md lists its variables;
// they are read at every call.

#include "simulator/faults/Card.h"

#include <cerrno>
#include <chrono>
#include <climits>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>
#include <fcntl.h>
#include <netdb.h>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

using simulator::Card;

namespace {
template <class Call>
Call *libraryCall(const char *name)
{
    return reinterpret_cast<Call *>(dlsym(RTLD_NEXT, name));
}

std::string setting(const char *name)
{
    const char *value = std::getenv(name);
    return value ? value : std::string();
}

bool isRaised(const char *name)
{
    return access(setting(name).c_str(), F_OK) == 0;
}

void pauseFor(const char *name)
{
    std::this_thread::sleep_for(std::chrono::milliseconds(std::atol(setting(name).c_str())));
}

// Empty where path does not lie on the card.
std::string onCard(std::string path)
{
    const std::string card = setting("ZELL_CARD");
    if (card.empty() || path.empty())
        return {};
    char folder[PATH_MAX];
    if (path.front() != '/' && getcwd(folder, sizeof folder))
        path = folder + ('/' + path);
    return (path + '/').starts_with(card + '/') ? path : std::string();
}

std::string pathOf(int file)
{
    char path[PATH_MAX];
    const std::string link = "/proc/self/fd/" + std::to_string(file);
    const ssize_t size = readlink(link.c_str(), path, sizeof path);
    // A pipe or socket has a name of another kind.
    return {path, size > 0 && path[0] == '/' ? std::size_t(size) : 0};
}

struct stat statusOf(int file)
{
    struct stat status
    {
    };
    fstat(file, &status);
    return status;
}

// The card whose content is followed, where its power is to fail.
Card *failingCard(const std::string &path)
{
    return path.empty() || setting("ZELL_CARD_CUT").empty() ? nullptr : &Card::ofProcess();
}

// Before each change of what lies at path. Whether the card refuses it; errno says why.
bool isRefused(const std::string &path, bool isLonger = false)
{
    if (Card *card = failingCard(path))
        card->count(std::atol(setting("ZELL_CARD_CUT").c_str()));
    if (path.empty())
        return false;
    if (isRaised("ZELL_CARD_READ_ONLY"))
        errno = EROFS;
    else if (isLonger && isRaised("ZELL_CARD_FULL"))
        errno = ENOSPC;
    else
        return false;
    return true;
}

template <class Write>
ssize_t writeTo(int file, const void *bytes, std::size_t size, off_t offset, const Write &write)
{
    const std::string path = onCard(pathOf(file));
    if (isRefused(path, offset + off_t(size) > statusOf(file).st_size))
        return -1;
    const ssize_t written = write();
    if (Card *card = failingCard(path); card && written > 0)
        card->wrote(path, bytes, std::size_t(written), offset);
    return written;
}

int syncTo(int file, int (*sync)(int))
{
    const std::string path = onCard(pathOf(file));
    if (isRefused(path))
        return -1;
    if (path.empty())
        return sync(file);
    pauseFor("ZELL_CARD_SYNC_MS");
    if (std::FILE *list = std::fopen(setting("ZELL_CARD_SYNCS").c_str(), "ae")) {
        std::fputs((path + '\n').c_str(), list);
        std::fclose(list);
    }
    Card *card = failingCard(path);
    if (!card)
        return sync(file);
    // What is durable is known without the disk, which may be slow.
    S_ISDIR(statusOf(file).st_mode) ? card->folderSynced() : card->fileSynced(path);
    return 0;
}

// For calls after which nothing lies at name any more; tell lets the card know of that.
template <class Take, class Tell>
int takeFrom(const char *name, const Take &take, const Tell &tell)
{
    const std::string path = onCard(name);
    if (isRefused(path))
        return -1;
    Card *card = failingCard(path);
    if (card)
        card->follow(path);
    const int result = take();
    if (card && result == 0)
        tell(*card, path);
    return result;
}
} // namespace

extern "C" {

int open64(const char *name, int flags, ...)
{
    static const auto next = libraryCall<decltype(open64)>("open64");
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);

    const std::string path = onCard(name);
    if (path.empty() || (flags & (O_ACCMODE | O_CREAT)) == O_RDONLY)
        return next(name, flags, mode);
    const bool isThere = access(name, F_OK) == 0;
    if (isThere ? isRaised("ZELL_CARD_READ_ONLY") : isRefused(path)) {
        errno = EROFS;
        return -1;
    }
    Card *card = failingCard(path);
    if (card && isThere)
        card->follow(path);
    const int file = next(name, flags, mode);
    if (card && !isThere && file >= 0)
        card->created(path);
    return file;
}

ssize_t read(int file, void *bytes, std::size_t size)
{
    static const auto next = libraryCall<decltype(read)>("read");
    const std::string slow = setting("ZELL_SLOW_FILE");
    // As a driver does: the text is made when its first byte is asked for.
    if (!slow.empty() && lseek(file, 0, SEEK_CUR) == 0) {
        std::string path = pathOf(file);
        // A file that was replaced since it was opened.
        constexpr std::string_view replaced = " (deleted)";
        if (path.ends_with(replaced))
            path.resize(path.size() - replaced.size());
        if (path.ends_with(slow))
            pauseFor("ZELL_SLOW_MS");
    }
    return next(file, bytes, size);
}

ssize_t write(int file, const void *bytes, std::size_t size)
{
    static const auto next = libraryCall<decltype(write)>("write");
    return writeTo(file, bytes, size, lseek(file, 0, SEEK_CUR),
                   [&] { return next(file, bytes, size); });
}

ssize_t pwrite64(int file, const void *bytes, std::size_t size, off64_t offset)
{
    static const auto next = libraryCall<decltype(pwrite64)>("pwrite64");
    return writeTo(file, bytes, size, offset, [&] { return next(file, bytes, size, offset); });
}

int ftruncate64(int file, off64_t size) noexcept
{
    static const auto next = libraryCall<decltype(ftruncate64)>("ftruncate64");
    const std::string path = onCard(pathOf(file));
    if (isRefused(path, size > statusOf(file).st_size))
        return -1;
    const int result = next(file, size);
    if (Card *card = failingCard(path); card && result == 0)
        card->truncated(path, size);
    return result;
}

int fsync(int file)
{
    static const auto next = libraryCall<decltype(fsync)>("fsync");
    return syncTo(file, next);
}

int fdatasync(int file)
{
    static const auto next = libraryCall<decltype(fdatasync)>("fdatasync");
    return syncTo(file, next);
}

int unlink(const char *name) noexcept
{
    static const auto next = libraryCall<decltype(unlink)>("unlink");
    return takeFrom(
        name, [&] { return next(name); },
        [](Card &card, const std::string &path) { card.removed(path); });
}

int renameat2(int fromFolder, const char *from, int toFolder, const char *to,
              unsigned flags) noexcept
{
    static const auto next = libraryCall<decltype(renameat2)>("renameat2");
    return takeFrom(
        from, [&] { return next(fromFolder, from, toFolder, to, flags); },
        [to](Card &card, const std::string &path) { card.renamed(path, onCard(to)); });
}

int getaddrinfo(const char *name, const char *service, const addrinfo *hints, addrinfo **found)
{
    static const auto next = libraryCall<decltype(getaddrinfo)>("getaddrinfo");
    if (!setting("ZELL_NAMES_MS").empty())
        std::fputs("the name server is asked\n", stderr);
    pauseFor("ZELL_NAMES_MS");
    return next(name, service, hints, found);
}
}
