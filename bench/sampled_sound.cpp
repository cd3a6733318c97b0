// Measures sampled sound and prints a line for each figure: how many voices can be rendered in real
// time, what the first sound of many keys costs, and how clean the sound is. `taskset -c 0` limits
// it to one processor. It replaces the functions that allocate and lock, to count their calls.

#include "app/Player.h"
#include "audio/AudioEngine.h"
#include "base/Log.h"
#include "sound/ALInstrument.h"
#include "support/Pitch.h"
#include "support/Stereo.h"
#include "tuning/DynamicTemperament.h"

#include <dlfcn.h>
#include <pthread.h>
#include <spdlog/fmt/fmt.h>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <complex>
#include <cstdlib>
#include <functional>
#include <numbers>

namespace {

std::atomic<bool> isRendering{false};
std::atomic<long> allocations{0}, locks{0}, contendedLocks{0};

void countAllocation()
{
    if (isRendering)
        ++allocations;
}

} // namespace

extern "C" {

void* __libc_malloc(std::size_t);
void* __libc_calloc(std::size_t, std::size_t);
void* __libc_realloc(void*, std::size_t);
void* __libc_memalign(std::size_t, std::size_t);

void* malloc(std::size_t size)
{
    countAllocation();
    return __libc_malloc(size);
}

void* calloc(std::size_t count, std::size_t size)
{
    countAllocation();
    return __libc_calloc(count, size);
}

void* realloc(void* before, std::size_t size)
{
    countAllocation();
    return __libc_realloc(before, size);
}

int posix_memalign(void** result, std::size_t alignment, std::size_t size)
{
    countAllocation();
    *result = __libc_memalign(alignment, size);
    return *result == nullptr ? ENOMEM : 0;
}

void* aligned_alloc(std::size_t alignment, std::size_t size)
{
    countAllocation();
    return __libc_memalign(alignment, size);
}

int pthread_mutex_lock(pthread_mutex_t* mutex)
{
    static const auto lock =
        reinterpret_cast<int (*)(pthread_mutex_t*)>(dlsym(RTLD_NEXT, "pthread_mutex_lock"));
    if (!isRendering)
        return lock(mutex);
    ++locks;
    if (pthread_mutex_trylock(mutex) == 0)
        return 0;
    ++contendedLocks;
    return lock(mutex);
}
}

namespace velmora {

namespace {

constexpr double kRate = 48000.0;
constexpr double kRecordedRate = 44100.0;
constexpr std::size_t kBlock = 128;
constexpr double kMicroseconds = 1e6;
constexpr double kFullTurn = 2.0 * std::numbers::pi;

double decibels(double ratio)
{
    return 20.0 * std::log10(ratio);
}

Pcm recorded(int channels, double seconds, const std::function<double(double)>& wave)
{
    Pcm pcm{{}, channels, kRecordedRate};
    for (double frame = 0.0; frame < seconds * kRecordedRate; ++frame)
        pcm.samples.insert(
            pcm.samples.end(), static_cast<std::size_t>(channels),
            static_cast<std::int16_t>(std::lround(12000.0 * wave(frame / kRecordedRate))));
    return pcm;
}

/// An organ of drawn stops whose keys share a sound by tens.
void fill(ALInstrument& organ, int stops, int channels, double seconds)
{
    constexpr std::size_t kShared = 10;
    for (int i = 0; i < stops; ++i) {
        InstrumentStop& stop = organ.appendStop("");
        stop.volume = 0.1F;
        for (std::size_t key = 0; key < kKeys; ++key) {
            const double root = equal.getPitch(key / kShared * kShared);
            auto& sound = organ.sounds[fmt::format("{} {}", i, key / kShared)];
            if (!sound)
                sound = std::make_unique<Sound>(organ.renderer(),
                                                recorded(channels, seconds, [&](double time) {
                                                    return std::sin(kFullTurn * root * time);
                                                }));
            stop.samples[key].setBuffer(*sound, equal.getPitch(key));
        }
    }
}

/// Renders a block and returns the microseconds that it took.
double renderBlock(AudioSource& source, std::vector<float>& left, std::size_t frames = kBlock)
{
    std::vector<float> right(frames);
    left.resize(frames);
    const double began = getTime();
    isRendering = true;
    source.render(left.data(), right.data(), frames, AudioSource::kOffline);
    isRendering = false;
    return (getTime() - began) * kMicroseconds;
}

/// Prints how many voices could be rendered in real time: held ones and released ones.
void measureVoices(int channels, int stops)
{
    ALInstrument organ;
    fill(organ, stops, channels, channels == 1 ? 8.0 : 4.0);
    AudioSource& source = *organ.source();
    for (int key = 0; key < kLastKey; ++key)
        organ.play(key, 1.0F);
    std::vector<float> left;
    const auto measure = [&](const char* what, std::size_t frames, int blocks) {
        std::vector<double> times;
        for (int i = 0; i < blocks; ++i)
            times.push_back(renderBlock(source, left, frames));
        const auto voices = static_cast<double>(source.voices());
        std::ranges::sort(times);
        const double period = static_cast<double>(frames) / kRate * kMicroseconds;
        fmt::print("{} {} voices of {} channels in blocks of {} frames: {:.0f} in real time "
                   "(median), {:.0f} (best)\n",
                   voices, what, channels, frames, voices * period / times[times.size() / 2],
                   voices * period / times.front());
    };
    renderBlock(source, left);
    measure("held", kBlock, 400);
    measure("held", SampleVoices::kBlock, 50);
    for (int key = 0; key < kLastKey; ++key)
        organ.stop(key);
    measure("released", kBlock, 30);
}

/// Prints the cost of pressing and of sounding one key after another.
void measureKeys()
{
    constexpr int kKeysPressed = 40;
    ALInstrument organ;
    fill(organ, 60, 1, 8.0);
    AudioEngine engine(kRate);
    engine.add(*organ.source());
    DynamicTemperament temperament;
    Player player;
    player.setTemperament(temperament);
    player.setInstrument(organ);
    std::vector<float> before, left;
    double worstKey = 0.0, worstBlock = 0.0;
    int silent = 0, repeated = 0;
    renderBlock(engine, before);
    for (int key = 40; key < 40 + kKeysPressed; ++key) {
        const double began = getTime();
        player.keyOn(key, 1.0F);
        worstKey = std::max(worstKey, (getTime() - began) * kMicroseconds);
        double block = 0.0;
        for (int i = 0; i < 4; ++i) {
            block = std::max(block, renderBlock(engine, left));
            silent += i > 0 && peak(left) == 0.0F ? 1 : 0;
            repeated += left == before ? 1 : 0;
            before = left;
        }
        worstBlock = std::max(worstBlock, block);
        const std::size_t voices = engine.voices();
        for (const std::size_t mark : {257U, 513U, 1025U, 2049U})
            if (voices >= mark && voices < mark + 60)
                fmt::print("{} voices: worst period {:.0f} us\n", voices, block);
    }
    fmt::print("60 stops, {} keys: worst keyOn {:.1f} us, worst period {:.0f} of {:.0f} us, "
               "{} silent, {} repeated periods\n",
               kKeysPressed, worstKey, worstBlock,
               static_cast<double>(kBlock) / kRate * kMicroseconds, silent, repeated);
    allocations = locks = contendedLocks = 0;
    for (int round = 0; round < 1000; ++round) {
        const int key = 30 + 7 * round % 60;
        player.keyOn(key, 1.0F);
        player.keyOff(30 + 7 * (round + 50) % 60);
        player.bend(round % 100, getTime());
        for (int i = 0; i < 3; ++i)
            renderBlock(engine, left);
        player.fade();
    }
    fmt::print("8 s of playing with up to 600 voices: {} allocations, {} locks, {} contended\n",
               allocations.load(), locks.load(), contendedLocks.load());
}

void transform(std::vector<std::complex<double>>& values)
{
    if (values.size() == 1)
        return;
    std::vector<std::complex<double>> even, odd;
    for (std::size_t i = 0; i < values.size(); i += 2) {
        even.push_back(values[i]);
        odd.push_back(values[i + 1]);
    }
    transform(even);
    transform(odd);
    for (std::size_t i = 0; i < even.size(); ++i) {
        const auto turned = odd[i] * std::polar(1.0, -kFullTurn * static_cast<double>(i) /
                                                         static_cast<double>(values.size()));
        values[i] = even[i] + turned;
        values[i + even.size()] = even[i] - turned;
    }
}

/// One key with a sound of its own.
void setSound(ALInstrument& instrument, int key, double rootHertz, const Pcm& pcm)
{
    InstrumentStop& stop = instrument.appendStop("");
    stop.volume = 0.5F;
    auto& sound = instrument.sounds["a"] = std::make_unique<Sound>(instrument.renderer(), pcm);
    stop.samples[static_cast<std::size_t>(key)].setBuffer(*sound, rootHertz);
    instrument.tune(equal, key, key);
}

/// Prints the strongest tone between the harmonics of a reed that is played higher than recorded.
void measureSpurs()
{
    constexpr int kKey = 47;
    constexpr std::size_t kFrames = 65536;
    constexpr double kRoot = 220.0;
    ALInstrument instrument;
    setSound(instrument, kKey, kRoot, recorded(1, 4.0, [](double time) {
                 double sum = 0.0;
                 for (int n = 1; n * kRoot < 16000.0; ++n)
                     sum += 0.4 * std::sin(kFullTurn * n * kRoot * time) / n;
                 return sum;
             }));
    instrument.play(kKey, 1.0F);
    AudioSource& source = *instrument.source();
    rendered(source, 9600);
    const std::vector<float> heard = rendered(source, kFrames).left;
    const double hertz = measuredHertz(heard, kRate, equal.getPitch(kKey));
    std::vector<std::complex<double>> spectrum;
    for (std::size_t i = 0; i < kFrames; ++i) {
        const double x = kFullTurn * static_cast<double>(i) / static_cast<double>(kFrames);
        spectrum.emplace_back(heard[i] * (0.35875 - 0.48829 * std::cos(x) +
                                          0.14128 * std::cos(2 * x) - 0.01168 * std::cos(3 * x)));
    }
    transform(spectrum);
    double loudest = 0.0, spur = 0.0, spurHertz = 0.0;
    for (std::size_t i = 20; i < kFrames / 2; ++i) {
        const double at = static_cast<double>(i) * kRate / static_cast<double>(kFrames);
        const double power = std::abs(spectrum[i]);
        loudest = std::max(loudest, power);
        const double distance = std::fabs(at - hertz * std::round(at / hertz));
        if (distance > 8.0 * kRate / static_cast<double>(kFrames) && power > spur) {
            spur = power;
            spurHertz = at;
        }
    }
    fmt::print("reed at {:.2f} Hz: strongest inharmonic tone {:.1f} dB at {:.0f} Hz\n", hertz,
               decibels(spur / loudest), spurHertz);
}

/// Removes what lies below 2 kHz, by a Butterworth filter of the eighth order.
std::vector<float> highPassed(std::vector<float> sound)
{
    for (const double quality : {0.50980, 0.60134, 0.89998, 2.56292}) {
        const double turn = kFullTurn * 2000.0 / kRate;
        const double alpha = std::sin(turn) / (2.0 * quality);
        const double half = (1.0 + std::cos(turn)) / 2.0;
        double x1 = 0.0, x2 = 0.0, y1 = 0.0, y2 = 0.0;
        for (float& sample : sound) {
            const double x = sample;
            const double y = (half * x - 2.0 * half * x1 + half * x2 + 2.0 * std::cos(turn) * y1 -
                              (1.0 - alpha) * y2) /
                             (1.0 + alpha);
            x2 = std::exchange(x1, x);
            y2 = std::exchange(y1, y);
            sample = static_cast<float>(y);
        }
    }
    return sound;
}

/// Prints what is heard above 2 kHz of a note of 330 Hz that begins softly.
void measureClicks()
{
    constexpr int kKey = 52;
    ALInstrument instrument;
    setSound(instrument, kKey, 330.0, recorded(1, 20.0, [](double time) {
                 const double attack =
                     time < 0.03 ? 0.5 - 0.5 * std::cos(kFullTurn * time / 0.06) : 1.0;
                 return attack * std::sin(kFullTurn * 330.0 * time);
             }));
    AudioSource& source = *instrument.source();
    double frame = 0.0, loudest = 0.0;
    std::vector<float> heard;
    const std::pair<const char*, std::function<void()>> events[] = {
        {"onset", [&] { instrument.play(kKey, 1.0F); }},
        {"restart of a held key", [&] { instrument.play(kKey, 1.0F); }},
        {"release", [&] { instrument.stop(kKey); }},
        {"restart of a released key", [&] { instrument.play(kKey, 1.0F); }},
        {"silence", [&] { instrument.silence(); }}};
    std::vector<std::size_t> begins;
    for (const auto& [name, act] : events) {
        instrument.setDue(1.0 + (frame + 333.0) / kRate);
        act();
        begins.push_back(heard.size());
        for (int i = 0; i < 75; ++i, frame += kBlock) {
            Stereo block(kBlock);
            source.render(block.left.data(), block.right.data(), kBlock, 1.0 + frame / kRate);
            heard.insert(heard.end(), block.left.begin(), block.left.end());
        }
    }
    loudest = peak(heard);
    begins.push_back(heard.size());
    const std::vector<float> high = highPassed(heard);
    for (std::size_t i = 0; i + 1 < begins.size(); ++i)
        fmt::print("{}: {:.1f} dB above 2 kHz\n", events[i].first,
                   decibels(peak(std::span(high).subspan(begins[i], begins[i + 1] - begins[i])) /
                            loudest));
}

} // namespace

} // namespace velmora

int main()
{
    using namespace velmora;
    setLogLevel(spdlog::level::warn);
    measureSpurs();
    measureClicks();
    measureKeys();
    measureVoices(1, 16);
    measureVoices(2, 8);
    measureVoices(1, 60);
    measureVoices(2, 30);
}
