#include "platform/ReplacingFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <random>
#include <string>
#include <system_error>

namespace velmora {

namespace {

/// As many links in a row as the system follows.
constexpr int kMostLinks = 40;

[[noreturn]] void fail(int code)
{
    throw std::system_error(code, std::generic_category());
}

/// Returns the file that a path leads to through symbolic links, whether or not it exists.
std::filesystem::path followLinks(std::filesystem::path path)
{
    std::error_code error;
    for (int links = 0; std::filesystem::is_symlink(path, error); ++links) {
        if (links == kMostLinks)
            fail(ELOOP);
        path = path.parent_path() / std::filesystem::read_symlink(path);
    }
    return path;
}

/// Returns an unlikely name in the same folder, short enough for any file system.
std::filesystem::path randomNameBeside(const std::filesystem::path& path)
{
    std::random_device random; // not shared, because files are written on several threads
    return path.parent_path() / (".velmora-" + std::to_string(random()));
}

} // namespace

ReplacingFile::ReplacingFile(const std::filesystem::path& path)
    : target_(followLinks(std::filesystem::absolute(path)))
{
    do {
        temporary_ = randomNameBeside(target_);
        descriptor_ = open(temporary_.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    } while (descriptor_ < 0 && (errno == EEXIST || errno == EINTR));
    if (descriptor_ < 0)
        fail(errno);
    struct stat old {};
    if (stat(target_.c_str(), &old) == 0)
        fchmod(descriptor_, old.st_mode & 07777U);
}

ReplacingFile::~ReplacingFile()
{
    close(descriptor_);
    if (!temporary_.empty())
        unlink(temporary_.c_str());
}

void ReplacingFile::commit()
{
    if (fsync(descriptor_) != 0 || rename(temporary_.c_str(), target_.c_str()) != 0)
        fail(errno);
    temporary_.clear();
}

} // namespace velmora
