#include "audio/SampleVoices.h"

#include "base/FormatError.h"
#include "base/fading.h"

#include <al.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace velmora {

namespace {

// See docs/decisions.md, 27.
constexpr float kFirstGain = 0.4F;

/// The natural logarithm of what a second leaves of the gain of a released sample.
const double kDecayPerSecond =
    std::log(kFadeFactor) / std::chrono::duration<double>(kFadeInterval).count();

/// What ends at once fades this long, so that it does not click.
constexpr double kEndSeconds = 0.005;

/// The steps of a decay in a second, and the frames of a step at low rates. OpenAL changes a gain
/// evenly over the frames that it renders.
constexpr double kStepsPerSecond = 375.0;
constexpr double kShortestStep = 128.0;

/// Each block looks at this part of the voices for those whose sound has come to its end.
constexpr std::size_t kChecks = 32;

/// This many sources are started at once. OpenAL enlarges its list of voices if that has no room
/// for them behind all voices that have ever been used.
constexpr std::size_t kBatch = 64;

/// OpenAL doubles the list and takes 32 KB for each voice, so small instruments get fewer voices
/// than a processor can render.
constexpr std::size_t kFewVoices = 512 - kBatch;
constexpr std::size_t kManyVoices = 2048 - kBatch;
constexpr std::size_t kBytesPerVoice = 1 << 15;

/// The part of the voices that is left free by ending released ones.
constexpr std::size_t kReserve = 16;

std::size_t stepAt(double rate)
{
    return static_cast<std::size_t>(std::max(kShortestStep, std::round(rate / kStepsPerSecond)));
}

} // namespace

SampleVoices::SampleVoices(std::unique_ptr<OpenALDevice> device, double rate)
    : device_(std::move(device)), rate_(rate), step_(stepAt(rate))
{
}

std::uint32_t SampleVoices::add(unsigned buffer)
{
    const auto here = scope();
    std::array<unsigned, 2> sources{};
    alGenSources(2, sources.data());
    if (sources[1] == 0)
        throw FormatError("OpenAL has no source left for it: unload another instrument first");
    for (const unsigned source : sources) {
        alSourcef(source, AL_GAIN, kFirstGain);
        alSource3f(source, AL_POSITION, 0.0F, 0.0F, 0.0F);
        alSourcef(source, AL_PITCH, 1.0F);
        alSourcei(source, AL_BUFFER, static_cast<ALint>(buffer));
    }
    if (free_.empty()) {
        free_.push_back(static_cast<std::uint32_t>(second_.size()));
        voices_.resize(voices_.size() + 2);
        second_.push_back(0);
        dues_.push_back(0.0);
    }
    isPrepared_ = false;
    const std::uint32_t number = free_.back();
    free_.pop_back();
    for (std::uint32_t which = 0; which < 2; ++which)
        voices_[indexOf(number, which)].source = sources[which];
    return number;
}

void SampleVoices::remove(std::uint32_t number)
{
    const auto here = scope();
    for (std::uint32_t which = 0; which < 2; ++which) {
        Voice& voice = voices_[indexOf(number, which)];
        alDeleteSources(1, &voice.source);
        voice = {};
    }
    free_.push_back(number);
}

void SampleVoices::prepare()
{
    if (std::exchange(isPrepared_, true))
        return;
    std::vector<unsigned> sources;
    for (const Voice& voice : voices_)
        if (voice.source != 0)
            sources.push_back(voice.source);
    sources.resize(
        std::min(sources.size(), std::clamp(bytes / kBytesPerVoice, kFewVoices, kManyVoices)));
    if (sources.size() <= limit_)
        return;
    limit_ = sources.size();
    active_.reserve(limit_);
    starting_.reserve(2 * limit_);
    tails_.reserve(limit_);
    const auto here = scope();
    device_->prepare(sources, kBatch);
    for (const unsigned source : sources)
        alSourcef(source, AL_GAIN, kFirstGain);
}

void SampleVoices::setRate(double rate)
{
    if (rate == rate_)
        return;
    rate_ = rate;
    step_ = stepAt(rate);
    tuning_ = static_cast<float>(device_->setRate(rate) / rate);
    const auto here = scope();
    for (const std::uint32_t index : active_)
        setPitch(voices_[index]);
}

double SampleVoices::order(std::uint32_t number, double due)
{
    dues_[number] = std::max(dues_[number], due);
    return dues_[number];
}

void SampleVoices::setRelief(Relief relief)
{
    if (relief != Relief::None && relief_ == Relief::None) {
        const auto here = scope();
        for (const std::uint32_t index : active_)
            if (voices_[index].phase == Phase::Tail)
                setCheap(voices_[index], true);
    }
    relief_ = relief;
    if (relief == Relief::FewerTails)
        endOldestTails();
}

void SampleVoices::render(std::span<const SampleEvent> events, std::uint32_t device,
                          std::size_t frames)
{
    const auto here = scope();
    auto event = events.begin();
    for (std::size_t done = 0; done < frames;) {
        std::size_t end = frames;
        for (; event != events.end(); ++event) {
            if (!event->isFor(device))
                continue;
            if (event->frame > done) {
                end = std::min(end, event->frame);
                break;
            }
            apply(*event);
        }
        done = advance(done, end);
    }
    findEnded();
    sounding_.store(active_.size(), std::memory_order_relaxed);
}

std::size_t SampleVoices::advance(std::size_t done, std::size_t end)
{
    if (active_.empty()) {
        std::fill(left_.begin() + done, left_.begin() + end, 0.0F);
        std::fill(right_.begin() + done, right_.begin() + end, 0.0F);
        return end;
    }
    // Long blocks take less time, so only a changing gain is stepped.
    const bool isFading = std::ranges::any_of(active_, [this](std::uint32_t index) {
        const Phase phase = voices_[index].phase;
        return phase == Phase::Tail || phase == Phase::Ending;
    });
    const std::size_t frames = isFading ? std::min(step_, end - done) : end - done;
    fade(frames);
    for (std::size_t i = 0; i < starting_.size(); i += kBatch)
        alSourcePlayv(static_cast<ALsizei>(std::min(kBatch, starting_.size() - i)), &starting_[i]);
    starting_.clear();
    device_->render(interleaved_.data(), frames);
    for (std::size_t i = 0; i < frames; ++i) {
        left_[done + i] = interleaved_[2 * i];
        right_[done + i] = interleaved_[2 * i + 1];
    }
    return done + frames;
}

void SampleVoices::fade(std::size_t frames)
{
    const auto decay =
        static_cast<float>(std::exp(kDecayPerSecond * static_cast<double>(frames) / rate_));
    for (std::size_t i = active_.size(); i-- > 0;) // a voice that ends leaves its place to the last
        fade(voices_[active_[i]], decay, frames);
}

void SampleVoices::fade(Voice& voice, float decay, std::size_t frames)
{
    switch (voice.phase) {
    case Phase::Silent:
    case Phase::Held:
        return;
    case Phase::Tail:
        voice.gain *= decay;
        if (voice.gain < static_cast<float>(kFaded))
            end(voice);
        break;
    case Phase::Ending:
        if (voice.gain == 0.0F) {
            stop(voice);
            return;
        }
        voice.gain = std::max(0.0F, voice.gain - voice.fall * static_cast<float>(frames));
        break;
    }
    alSourcef(voice.source, AL_GAIN, voice.gain);
}

void SampleVoices::findEnded()
{
    for (std::size_t checks = active_.size() / kChecks + 1; checks > 0 && !active_.empty();
         --checks) {
        nextToCheck_ = (nextToCheck_ + 1) % active_.size();
        Voice& voice = voices_[active_[nextToCheck_]];
        ALint state = AL_PLAYING;
        alGetSourcei(voice.source, AL_SOURCE_STATE, &state);
        if (state != AL_PLAYING)
            stop(voice);
    }
}

void SampleVoices::apply(const SampleEvent& event)
{
    switch (event.kind) {
    case SampleEvent::Kind::Start:
        start(event);
        break;
    case SampleEvent::Kind::Release:
        release(current(event.id.number));
        break;
    case SampleEvent::Kind::Pitch:
        current(event.id.number).pitch = event.pitch;
        if (current(event.id.number).phase != Phase::Silent)
            setPitch(current(event.id.number));
        break;
    case SampleEvent::Kind::Bend:
        bend_ = event.pitch;
        for (const std::uint32_t index : active_)
            setPitch(voices_[index]);
        break;
    case SampleEvent::Kind::End:
        for (const std::uint32_t index : active_)
            end(voices_[index]);
        break;
    }
}

// See docs/decisions.md, 26.
void SampleVoices::start(const SampleEvent& event)
{
    const std::uint32_t number = event.id.number;
    if (current(number).phase != Phase::Silent) {
        end(current(number));
        second_[number] ^= 1;
        if (current(number).phase != Phase::Silent)
            stop(current(number));
    }
    makeRoom();
    Voice& voice = current(number);
    setCheap(voice, false);
    voice.phase = Phase::Held;
    voice.age = ++age_;
    voice.gain = event.gain;
    voice.pitch = event.pitch;
    voice.place = static_cast<std::uint32_t>(active_.size());
    active_.push_back(indexOf(number, second_[number]));
    alSourcef(voice.source, AL_GAIN, voice.gain);
    setPitch(voice);
    starting_.push_back(voice.source);
}

void SampleVoices::release(Voice& voice)
{
    if (voice.phase != Phase::Held)
        return;
    voice.phase = Phase::Tail;
    voice.age = ++age_;
    if (relief_ != Relief::None)
        setCheap(voice, true);
}

void SampleVoices::end(Voice& voice)
{
    if (voice.phase == Phase::Ending)
        return;
    voice.phase = Phase::Ending;
    voice.age = ++age_;
    voice.fall = voice.gain / static_cast<float>(kEndSeconds * rate_);
}

void SampleVoices::stop(Voice& voice)
{
    alSourceStop(voice.source);
    std::erase(starting_, voice.source);
    voice.phase = Phase::Silent;
    active_[voice.place] = active_.back();
    voices_[active_[voice.place]].place = voice.place;
    active_.pop_back();
}

void SampleVoices::makeRoom()
{
    if (active_.size() + limit_ / kReserve >= limit_)
        if (Voice* tail = oldest(Phase::Tail))
            end(*tail);
    if (active_.size() < limit_)
        return;
    for (const Phase phase : {Phase::Ending, Phase::Held}) {
        if (Voice* voice = oldest(phase)) {
            stop(*voice);
            return;
        }
    }
}

SampleVoices::Voice* SampleVoices::oldest(Phase phase)
{
    Voice* result = nullptr;
    for (const std::uint32_t index : active_) {
        Voice& voice = voices_[index];
        if (voice.phase == phase && (result == nullptr || voice.age < result->age))
            result = &voice;
    }
    return result;
}

void SampleVoices::endOldestTails()
{
    tails_.clear();
    for (const std::uint32_t index : active_)
        if (voices_[index].phase == Phase::Tail)
            tails_.push_back(&voices_[index]);
    constexpr std::size_t kPart = 8;
    const std::size_t count = (tails_.size() + kPart - 1) / kPart;
    std::ranges::nth_element(tails_, tails_.begin() + static_cast<std::ptrdiff_t>(count), {},
                             &Voice::age);
    for (std::size_t i = 0; i < count; ++i)
        end(*tails_[i]);
}

void SampleVoices::setPitch(const Voice& voice)
{
    alSourcef(voice.source, AL_PITCH, voice.pitch * bend_ * tuning_);
}

void SampleVoices::setCheap(Voice& voice, bool cheap)
{
    if (voice.isCheap == cheap)
        return;
    voice.isCheap = cheap;
    device_->setResampler(voice.source,
                          cheap ? OpenALDevice::Resampler::Linear : OpenALDevice::Resampler::Best);
}

} // namespace velmora
