#pragma once

#include <pthread.h>

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <thread>
#include <vector>

namespace velmora {

/// Threads that share the work of an audio thread. They sleep until they are called, run at the
/// audio thread's priority if the system permits that, and nobody allocates or locks anything.
class WorkerPool {
public:
    /// Starts `threads` threads, which help the one that calls `run`.
    explicit WorkerPool(unsigned threads);

    ~WorkerPool();
    WorkerPool(const WorkerPool&) = delete;
    WorkerPool& operator=(const WorkerPool&) = delete;

    /// Calls `job(i)` for each `i` below `count`, on the calling thread and on the workers, and
    /// returns when all are done. Must be called by one thread at a time.
    template <class Job> void run(std::uint32_t count, const Job& job)
    {
        runAll(
            count, [](const void* data, std::size_t i) { (*static_cast<const Job*>(data))(i); },
            &job);
    }

private:
    using Call = void (*)(const void* data, std::size_t index);

    void runAll(std::uint32_t count, Call call, const void* data);
    void work();
    bool runOne(bool isWorker);
    void adoptPriority() const;

    // Written by `run` while no job is left:
    Call call_ = nullptr;
    const void* data_ = nullptr;
    pthread_t caller_{};

    std::atomic<std::uint64_t> ticket_{0}; ///< The number of the call, then of the jobs to take.
    std::atomic<std::uint32_t> unfinished_{0}; ///< Jobs that are not done.
    std::atomic<std::uint32_t> calls_{0};      ///< The workers sleep until it changes.
    std::atomic<bool> stopping_{false};
    std::vector<std::jthread> threads_;
};

} // namespace velmora
