#include "simulator/faults/Card.h"

#include <csignal>
#include <cstdio>
#include <unistd.h>

namespace simulator {
namespace {
// Through the streams of the C library, which do not pass through the calls that are counted.
std::string contentOf(const std::string &path)
{
    std::string content;
    if (std::FILE *file = std::fopen(path.c_str(), "re")) {
        char block[65536];
        while (const std::size_t size = std::fread(block, 1, sizeof block, file))
            content.append(block, size);
        std::fclose(file);
    }
    return content;
}

void replaceContent(const std::string &path, const std::string &content)
{
    if (std::FILE *file = std::fopen(path.c_str(), "we")) {
        std::fwrite(content.data(), 1, content.size(), file);
        std::fclose(file);
    }
}
} // namespace

Card &Card::ofProcess()
{
    static Card card;
    return card;
}

void Card::count(long cut)
{
    if (++counted < cut)
        return;
    // The number of the call decides alone, so that each cut can be had again.
    random.seed(std::mt19937::result_type(cut));
    isAllLost = random() % 2 == 0;
    losePower();
}

void Card::losePower()
{
    // Folder changes are lost from the last one backwards.
    earlier.push_back(names);
    const Folder &left = earlier[isAllLost ? 0 : random() % earlier.size()];
    for (const auto &[path, file] : left)
        replaceContent(path, survivor(*file));
    for (const Folder &folder : earlier) {
        for (const auto &[path, file] : folder) {
            if (!left.contains(path))
                std::remove(path.c_str());
        }
    }
    std::raise(SIGKILL);
    _exit(SIGKILL);
}

// What of a file reached the card: any of the writes that were under way may be missing.
std::string Card::survivor(const File &file)
{
    std::vector<Change> kept;
    for (const Change &change : file.changes) {
        if (!isLost())
            kept.push_back(change);
    }
    return afterChanges(file, kept);
}

bool Card::isLost()
{
    return isAllLost || random() % 2 == 0;
}

std::string Card::afterChanges(const File &file, const std::vector<Change> &changes)
{
    std::string content = file.durable;
    for (const Change &change : changes) {
        const std::size_t end = std::size_t(change.offset) + change.bytes.size();
        if (change.isTruncation || content.size() < end)
            content.resize(end);
        content.replace(std::size_t(change.offset), change.bytes.size(), change.bytes);
    }
    return content;
}

void Card::follow(const std::string &path)
{
    if (names.contains(path))
        return;
    const auto found = std::make_shared<File>(File{contentOf(path), {}});
    names[path] = found;
    for (Folder &folder : earlier)
        folder.emplace(path, found);
}

void Card::created(const std::string &path)
{
    earlier.push_back(names);
    names[path] = std::make_shared<File>();
}

void Card::removed(const std::string &path)
{
    earlier.push_back(names);
    names.erase(path);
}

void Card::renamed(const std::string &from, const std::string &to)
{
    earlier.push_back(names);
    names[to] = names[from];
    names.erase(from);
}

void Card::wrote(const std::string &path, const void *bytes, std::size_t size, off_t offset)
{
    names[path]->changes.push_back({offset, {static_cast<const char *>(bytes), size}, false});
}

void Card::truncated(const std::string &path, off_t size)
{
    names[path]->changes.push_back({size, {}, true});
}

void Card::fileSynced(const std::string &path)
{
    File &synced = *names[path];
    synced.durable = afterChanges(synced, synced.changes);
    synced.changes.clear();
}

void Card::folderSynced()
{
    earlier.clear();
}

} // namespace simulator
