// Counts what a program does inside its JACK callbacks: memory it allocates or frees, locks it
// takes, locks that another thread held, and calls that enter the system. Start the program with
// this library in LD_PRELOAD; when it ends, it prints the counts on standard error, and where the
// first allocations and held locks were met.

#include <dlfcn.h>
#include <execinfo.h>
#include <jack/jack.h>
#include <pthread.h>
#include <semaphore.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* memory, std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);
void __libc_free(void* memory);
}

namespace {

enum Event {
    kCallback,
    kAllocation,
    kLock,
    kHeldLock,
    kWrite,
    kWakeUp,
    kWait,
    kSystemCall,
    kEvents
};

constexpr std::array<const char*, kEvents> kNames{"callbacks",  "allocations", "locks",
                                                  "held locks", "writes",      "wake-ups",
                                                  "waits",      "system calls"};

/// The callbacks of one kind of client: those with audio, or those with MIDI.
struct Counters {
    const char* name;
    std::array<std::atomic<unsigned long>, kEvents> counts;
};

Counters audio{"audio", {}};
Counters midi{"MIDI", {}};

std::atomic<int> places{10}; ///< How many places may still be printed.

/// Null outside of callbacks.
__attribute__((tls_model("initial-exec"))) thread_local Counters* current = nullptr;

void count(Event event)
{
    Counters* counters = current;
    if (counters == nullptr)
        return;
    ++counters->counts[event];
    if ((event == kAllocation || event == kHeldLock) && places-- > 0) {
        current = nullptr;
        std::array<void*, 24> frames;
        std::fprintf(stderr, "%s: %s:\n", counters->name, kNames[event]);
        backtrace_symbols_fd(frames.data(), backtrace(frames.data(), frames.size()), 2);
        current = counters;
    }
}

/// Returns the function that this library stands in front of.
template <class Function> Function* next(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

struct Callback {
    JackProcessCallback process;
    void* data;
    Counters* counters;
};

int processCounted(jack_nframes_t frames, void* data)
{
    const auto& callback = *static_cast<Callback*>(data);
    current = callback.counters;
    count(kCallback);
    const int result = callback.process(frames, callback.data);
    current = nullptr;
    return result;
}

/// Loads what `backtrace` needs before it is called in a callback.
[[maybe_unused]] const int warmUp = [] {
    std::array<void*, 2> frames;
    return backtrace(frames.data(), frames.size());
}();

__attribute__((destructor)) void print()
{
    for (const Counters* counters : {&audio, &midi}) {
        if (counters->counts[kCallback] == 0)
            continue;
        std::fprintf(stderr, "%s:", counters->name);
        for (int i = 0; i < kEvents; ++i)
            std::fprintf(stderr, " %lu %s%s", counters->counts[i].load(), kNames[i],
                         i + 1 < kEvents ? "," : "\n");
    }
}

} // namespace

extern "C" {

int jack_set_process_callback(jack_client_t* client, JackProcessCallback process, void* data)
{
    static const auto original = next<decltype(jack_set_process_callback)>(__func__);
    const bool isAudio = std::strncmp(jack_get_client_name(client), "velmora", 7) == 0;
    return original(client, processCounted, new Callback{process, data, isAudio ? &audio : &midi});
}

void* malloc(std::size_t size)
{
    count(kAllocation);
    return __libc_malloc(size);
}

void* calloc(std::size_t number, std::size_t size)
{
    count(kAllocation);
    return __libc_calloc(number, size);
}

void* realloc(void* memory, std::size_t size)
{
    count(kAllocation);
    return __libc_realloc(memory, size);
}

void* aligned_alloc(std::size_t alignment, std::size_t size)
{
    count(kAllocation);
    return __libc_memalign(alignment, size);
}

void free(void* memory)
{
    if (memory != nullptr)
        count(kAllocation);
    __libc_free(memory);
}

int pthread_mutex_lock(pthread_mutex_t* mutex)
{
    static const auto original = next<decltype(pthread_mutex_lock)>(__func__);
    if (current == nullptr)
        return original(mutex);
    count(kLock);
    const int result = pthread_mutex_trylock(mutex);
    if (result != EBUSY)
        return result;
    count(kHeldLock);
    return original(mutex);
}

int pthread_cond_signal(pthread_cond_t* condition)
{
    static const auto original = next<decltype(pthread_cond_signal)>(__func__);
    count(kWakeUp);
    return original(condition);
}

int pthread_cond_broadcast(pthread_cond_t* condition)
{
    static const auto original = next<decltype(pthread_cond_broadcast)>(__func__);
    count(kWakeUp);
    return original(condition);
}

int pthread_cond_wait(pthread_cond_t* condition, pthread_mutex_t* mutex)
{
    static const auto original = next<decltype(pthread_cond_wait)>(__func__);
    count(kWait);
    return original(condition, mutex);
}

int sem_post(sem_t* semaphore)
{
    static const auto original = next<decltype(sem_post)>(__func__);
    count(kWakeUp);
    return original(semaphore);
}

int sem_wait(sem_t* semaphore)
{
    static const auto original = next<decltype(sem_wait)>(__func__);
    count(kWait);
    return original(semaphore);
}

ssize_t write(int file, const void* bytes, std::size_t length)
{
    static const auto original = next<decltype(write)>(__func__);
    count(kWrite);
    return original(file, bytes, length);
}

// The standard library's atomic waiting and waking enter the system here.
long syscall(long number, ...)
{
    static const auto original = next<decltype(syscall)>(__func__);
    count(kSystemCall);
    std::va_list list;
    va_start(list, number);
    std::array<long, 6> values{};
    for (long& value : values)
        value = va_arg(list, long);
    va_end(list);
    return original(number, values[0], values[1], values[2], values[3], values[4], values[5]);
}
}
