#include "sequencer/RecoveryFile.h"

#include "base/File.h"
#include "base/FormatError.h"
#include "base/Log.h"
#include "platform/writeFile.h"

#include <QStandardPaths>
#include <QUuid>

#include <sys/file.h>

#include <algorithm>
#include <cerrno>
#include <new>
#include <set>
#include <system_error>
#include <utility>

namespace velmora {

namespace {

constexpr const char* kExtension = ".unsaved";
constexpr const char* kLockExtension = ".lock";

std::string newName()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces).toStdString() + kExtension;
}

/// Returns the names of the files that are kept, and of those of which only the lock is left.
std::set<std::string> namesIn(const std::filesystem::path& folder)
{
    std::set<std::string> names;
    std::error_code error;
    auto entry = std::filesystem::directory_iterator(folder, error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        std::filesystem::path name = entry->path().filename();
        if (name.extension() == kLockExtension)
            name.replace_extension();
        if (name.extension() == kExtension)
            names.insert(name.string());
    }
    return names;
}

} // namespace

std::filesystem::path RecoveryFile::defaultFolder()
{
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return std::filesystem::path(data.toStdString()) / "velmora" / "recovery";
}

RecoveryFile::RecoveryFile(std::filesystem::path folder)
    : RecoveryFile(std::move(folder), newName())
{
}

RecoveryFile::RecoveryFile(std::filesystem::path folder, std::string name)
    : folder_(std::move(folder)), name_(std::move(name)), lock_(nullptr, std::fclose)
{
}

std::vector<Abandoned> RecoveryFile::abandoned(const std::filesystem::path& folder)
{
    std::vector<Abandoned> found;
    for (const std::string& name : namesIn(folder)) {
        RecoveryFile file(folder, name);
        if (!file.claim())
            continue;
        std::error_code error;
        if (!std::filesystem::exists(file.path(), error)) {
            file.discard(); // only its lock was left
            continue;
        }
        try {
            UnsavedSequence sequence = decodeUnsaved(readFile(file.path()));
            found.push_back({std::move(file), std::move(sequence)});
        } catch (const FormatError& wrong) {
            logger("sequencer").warn("{}", wrong.inFile(file.path().string()));
            file.unlock();
        } catch (const std::bad_alloc&) {
            logger("sequencer").warn("{}: too large to be read into memory", name);
            file.unlock();
        }
    }
    std::sort(found.begin(), found.end(), [](const Abandoned& a, const Abandoned& b) {
        return a.sequence.time < b.sequence.time;
    });
    return found;
}

bool RecoveryFile::claim()
{
    lock_.reset(std::fopen(lockPath().c_str(), "ae"));
    // If the file system does not support locks, claim the file all the same: two programs at once
    // are less likely than a crash.
    return lock_ && (flock(fileno(lock_.get()), LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK);
}

void RecoveryFile::write(const UnsavedSequence& sequence)
{
    if (!lock_) {
        std::error_code error;
        std::filesystem::create_directories(folder_, error);
        claim();
    }
    writeFile(path(), encodeUnsaved(sequence));
}

void RecoveryFile::discard()
{
    if (!lock_)
        return;
    std::error_code error;
    std::filesystem::remove(path(), error);
    unlock();
    name_ = newName();
}

void RecoveryFile::unlock()
{
    std::error_code error;
    std::filesystem::remove(lockPath(), error);
    lock_.reset();
}

std::filesystem::path RecoveryFile::lockPath() const
{
    return folder_ / (name_ + kLockExtension);
}

} // namespace velmora
