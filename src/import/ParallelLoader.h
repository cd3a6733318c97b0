#pragma once

#include <algorithm>
#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>
#include <vector>

namespace velmora {

/// Loads numbered things on several threads and hands them out in order. At most a few megabytes
/// are loaded ahead, or a single thing if that is larger. `Result` tells its size in `bytes()`.
template <class Result> class ParallelLoader {
public:
    /// What is loaded: the things 0 to `count` − 1. The functions are called on the threads of the
    /// loader, several at a time.
    struct Work {
        std::size_t count = 0;
        std::function<Result(std::size_t)> load;

        /// About the bytes of a result that is not loaded yet; 0 if unknown.
        std::function<std::uintmax_t(std::size_t)> estimate;
    };

    /// Starts loading. Uses at least one thread.
    explicit ParallelLoader(Work work, unsigned threads = std::thread::hardware_concurrency())
        : work_(std::move(work)), window_(kAhead * std::max(threads, 1U)), slots_(work_.count)
    {
        const std::size_t useful = std::min<std::size_t>(std::max(threads, 1U), work_.count);
        for (std::size_t i = 0; i < useful; ++i)
            threads_.emplace_back([this](const std::stop_token& stop) { run(stop); });
    }

    /// Waits for the things that are being loaded and skips the rest.
    ~ParallelLoader()
    {
        for (std::jthread& thread : threads_)
            thread.request_stop();
    }

    /// Returns whether `next` would not have to wait.
    bool isReady()
    {
        const std::lock_guard lock(mutex_);
        return slots_[taken_].done;
    }

    /// Waits for the next thing and returns it, or throws what its loading has thrown. Must not be
    /// called more often than there are things.
    Result next()
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
        return std::move(*slot.result);
    }

private:
    /// Number of things per thread that may be loaded ahead. More would only use more memory.
    static constexpr std::size_t kAhead = 4;

    /// Number of bytes that may be loaded and not yet taken.
    static constexpr std::uintmax_t kMaximumBytesAhead = std::uintmax_t{24} << 20;

    /// The state of one thing.
    struct Slot {
        bool done = false;
        std::optional<Result> result;
        std::exception_ptr error;
        std::uintmax_t bytes = 0; ///< Its share of `ahead_`.
    };

    void run(const std::stop_token& stop)
    {
        std::unique_lock lock(mutex_);
        while (started_ < work_.count && !stop.stop_requested()) {
            const std::size_t index = started_++;
            lock.unlock();
            const std::uintmax_t estimate = work_.estimate(index);
            lock.lock();
            // The next thing to be taken is never held up.
            const auto mayStart = [&] {
                return index == taken_ ||
                       (index < taken_ + window_ && ahead_ + estimate <= kMaximumBytesAhead);
            };
            if (!changed_.wait(lock, stop, mayStart))
                return;
            ahead_ += estimate;
            lock.unlock();
            Slot slot = load(index);
            lock.lock();
            ahead_ += slot.bytes;
            ahead_ -= estimate;
            slots_[index] = std::move(slot);
            changed_.notify_all();
        }
    }

    Slot load(std::size_t index) const
    {
        Slot slot;
        slot.done = true;
        try {
            slot.result = work_.load(index);
            slot.bytes = slot.result->bytes();
        } catch (...) {
            slot.error = std::current_exception();
        }
        return slot;
    }

    const Work work_;
    const std::size_t window_; ///< The most things that may be started and not yet taken.

    std::mutex mutex_; ///< Guards the members below.
    std::condition_variable_any changed_;
    std::vector<Slot> slots_;
    std::size_t started_ = 0;  ///< Number of things that a thread has started on.
    std::size_t taken_ = 0;    ///< Number of things handed out.
    std::uintmax_t ahead_ = 0; ///< Bytes started and not yet taken; an estimate until loaded.

    std::vector<std::jthread> threads_; ///< Last, so that the threads end first.
};

} // namespace velmora
