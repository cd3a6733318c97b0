#include "platform/WorkerPool.h"

#include <sched.h>

namespace velmora {

namespace {

constexpr std::uint64_t kJobs = 0xFFFFFFFF;
constexpr int kCallShift = 32;

/// The audio thread spins this often for the last job before it lets other threads run.
constexpr int kSpins = 20000;

void relax()
{
#if defined(__x86_64__) || defined(__i386__)
    __builtin_ia32_pause();
#endif
}

} // namespace

WorkerPool::WorkerPool(unsigned threads)
{
    for (unsigned i = 0; i < threads; ++i)
        threads_.emplace_back([this] { work(); });
}

WorkerPool::~WorkerPool()
{
    stopping_ = true;
    ++calls_;
    calls_.notify_all();
}

void WorkerPool::runAll(std::uint32_t count, Call call, const void* data)
{
    call_ = call;
    data_ = data;
    caller_ = pthread_self();
    unfinished_.store(count, std::memory_order_relaxed);
    const std::uint64_t number = (ticket_.load(std::memory_order_relaxed) >> kCallShift) + 1;
    ticket_.store(number << kCallShift | count, std::memory_order_release);
    ++calls_;
    calls_.notify_all();
    while (runOne(false))
        ;
    for (int spins = 0; unfinished_.load(std::memory_order_acquire) > 0; ++spins) {
        if (spins < kSpins)
            relax();
        else
            sched_yield();
    }
}

bool WorkerPool::runOne(bool isWorker)
{
    std::uint64_t ticket = ticket_.load(std::memory_order_acquire);
    do {
        if ((ticket & kJobs) == 0)
            return false;
    } while (!ticket_.compare_exchange_weak(ticket, ticket - 1, std::memory_order_acq_rel));
    // The caller now waits for this job, so what it has written does not change.
    if (isWorker)
        adoptPriority();
    call_(data_, static_cast<std::size_t>((ticket & kJobs) - 1));
    unfinished_.fetch_sub(1, std::memory_order_release);
    return true;
}

void WorkerPool::work()
{
    std::uint32_t call = 0;
    while (!stopping_) {
        calls_.wait(call);
        call = calls_;
        while (runOne(true))
            ;
    }
}

void WorkerPool::adoptPriority() const
{
    thread_local pthread_t adopted{};
    if (pthread_equal(adopted, caller_) != 0)
        return;
    adopted = caller_;
    int policy = SCHED_OTHER;
    sched_param parameters{};
    // Without the permission for it, the worker stays as it is.
    if (pthread_getschedparam(caller_, &policy, &parameters) == 0)
        pthread_setschedparam(pthread_self(), policy, &parameters);
}

} // namespace velmora
