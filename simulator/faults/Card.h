#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <sys/types.h>
#include <vector>

namespace simulator {

/// A memory card as it stands behind the files of one process: what was not yet synced when the
/// power fails is gone.
///
/// Content becomes durable when its file is synced, the names in a folder when any folder is
/// synced. Knows files by their absolute paths. One thread at a time.
class Card
{
public:
    /// The one card of the process.
    static Card &ofProcess();

    /// Counts one call that is about to change the card. Before the one numbered @p cut the power
    /// fails: what is lost leaves the disk, and the process is killed.
    void count(long cut);

    /// Takes the file at @p path as it stands for durable unless it is known already. To be called
    /// before any of the changes below; each of them is told once it has been made.
    void follow(const std::string &path);

    void created(const std::string &path);
    void removed(const std::string &path);
    void renamed(const std::string &from, const std::string &to);
    void wrote(const std::string &path, const void *bytes, std::size_t size, off_t offset);
    void truncated(const std::string &path, off_t size);
    void fileSynced(const std::string &path);
    void folderSynced();

private:
    struct Change
    {
        off_t offset;
        std::string bytes;
        bool isTruncation;
    };
    struct File
    {
        std::string durable;
        std::vector<Change> changes;
    };
    using Folder = std::map<std::string, std::shared_ptr<File>>;

    static std::string afterChanges(const File &file, const std::vector<Change> &changes);
    [[noreturn]] void losePower();
    std::string survivor(const File &file);
    bool isLost();

    long counted = 0;
    bool isAllLost = true;
    std::mt19937 random;
    Folder names;
    // What the names were before each change of them since the last sync of a folder.
    std::vector<Folder> earlier;
};

} // namespace simulator
