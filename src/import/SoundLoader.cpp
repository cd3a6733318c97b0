#include "import/SoundLoader.h"

#include "audio/AudioFileDecoder.h"

#include <algorithm>

namespace velmora {

namespace {

/// Number of files per thread that may be decoded ahead. More would only use more memory.
constexpr std::size_t kFilesAhead = 4;

/// Number of bytes that may be decoded and not yet taken.
constexpr std::uintmax_t kMaximumAhead = std::uintmax_t{24} << 20;

std::uintmax_t sizeOf(const std::filesystem::path& file)
{
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(file, error);
    return error ? 0 : size;
}

} // namespace

SoundLoader::SoundLoader(std::vector<std::filesystem::path> files, const DecodingOptions& options,
                         unsigned threads)
    : files_(std::move(files)), options_(options), window_(kFilesAhead * std::max(threads, 1U)),
      slots_(files_.size())
{
    const std::size_t useful = std::min<std::size_t>(std::max(threads, 1U), files_.size());
    for (std::size_t i = 0; i < useful; ++i)
        threads_.emplace_back([this](const std::stop_token& stop) { work(stop); });
}

SoundLoader::~SoundLoader()
{
    for (std::jthread& thread : threads_)
        thread.request_stop();
}

Pcm SoundLoader::next()
{
    Slot slot;
    {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [this] { return slots_[taken_].done; });
        slot = std::move(slots_[taken_]);
        ahead_ -= slot.bytes;
        ++taken_;
    }
    changed_.notify_all();
    if (slot.error)
        std::rethrow_exception(slot.error);
    return std::move(*slot.pcm);
}

void SoundLoader::work(const std::stop_token& stop)
{
    std::unique_lock lock(mutex_);
    while (started_ < files_.size() && !stop.stop_requested()) {
        const std::size_t index = started_++;
        lock.unlock();
        const std::uintmax_t estimate = sizeOf(files_[index]);
        lock.lock();
        // The next file to be taken is never held up.
        const auto mayStart = [&] {
            return index == taken_ ||
                   (index < taken_ + window_ && ahead_ + estimate <= kMaximumAhead);
        };
        if (!changed_.wait(lock, stop, mayStart))
            return;
        ahead_ += estimate;
        lock.unlock();
        Slot slot = decode(files_[index]);
        lock.lock();
        ahead_ += slot.bytes;
        ahead_ -= estimate;
        slots_[index] = std::move(slot);
        changed_.notify_all();
    }
}

SoundLoader::Slot SoundLoader::decode(const std::filesystem::path& file) const
{
    Slot slot;
    slot.done = true;
    try {
        slot.pcm = decodeAudioFile(file, options_);
        slot.bytes = slot.pcm->bytes();
    } catch (const std::exception&) {
        slot.error = std::current_exception();
    }
    return slot;
}

} // namespace velmora
