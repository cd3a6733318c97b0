#include "audio/SampleVoices.h"

#include "audio/ReleaseAlignment.h"
#include "base/fading.h"

#include <al.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

namespace velmora {

namespace {

/// The natural logarithm of what a second leaves of the gain of a released sample.
const double kDecayPerSecond =
    std::log(kFadeFactor) / std::chrono::duration<double>(kFadeInterval).count();

/// What ends at once fades this long, so that it does not click.
constexpr double kEndSeconds = 0.005;

/// A release that begins again fades this long, so that a room's sound does not stop abruptly.
constexpr double kReleaseEndSeconds = 0.15;

/// The steps of a decay in a second, and the frames of a step at low rates. OpenAL changes a gain
/// evenly over the frames that it renders.
constexpr double kStepsPerSecond = 375.0;
constexpr double kShortestStep = 128.0;

/// Each block looks at this part of the voices for those whose sound has come to its end.
constexpr std::size_t kChecks = 32;

/// The part of the voices that is left free by ending released ones.
constexpr std::size_t kReserve = 16;

std::size_t stepAt(double rate)
{
    return static_cast<std::size_t>(std::max(kShortestStep, std::round(rate / kStepsPerSecond)));
}

} // namespace

SampleVoices::SampleVoices(std::unique_ptr<OpenALDevice> device, double rate)
    : sources_(std::move(device)), rate_(rate), step_(stepAt(rate))
{
}

void SampleVoices::prepare()
{
    if (!sources_.prepare())
        return;
    active_.reserve(sources_.limit());
    starting_.reserve(2 * sources_.limit());
    tails_.reserve(sources_.limit());
}

void SampleVoices::setRate(double rate)
{
    if (rate == rate_)
        return;
    const auto lock = sources_.lock();
    rate_ = rate;
    step_ = stepAt(rate);
    tuning_ = static_cast<float>(sources_.device().setRate(rate) / rate);
    const auto here = sources_.scope();
    for (const std::uint32_t index : active_)
        setPitch(sources_.voice(index));
}

void SampleVoices::setRelief(Relief relief)
{
    const auto lock = sources_.lock();
    if (relief != Relief::None && relief_ == Relief::None) {
        const auto here = sources_.scope();
        for (const std::uint32_t index : active_)
            if (sources_.voice(index).isTail())
                setCheap(sources_.voice(index), true);
    }
    relief_ = relief;
    if (relief == Relief::FewerTails)
        endOldestTails();
}

void SampleVoices::render(std::span<const SampleEvent> events, std::uint32_t device,
                          std::size_t frames)
{
    const auto lock = sources_.lock();
    const auto here = sources_.scope();
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
    const std::size_t frames = framesInStep(end - done);
    fade(frames);
    for (std::size_t i = 0; i < starting_.size(); i += SampleSources::kBatch)
        alSourcePlayv(static_cast<ALsizei>(std::min(SampleSources::kBatch, starting_.size() - i)),
                      &starting_[i]);
    starting_.clear();
    sources_.device().render(interleaved_.data(), frames);
    for (std::size_t i = 0; i < frames; ++i) {
        left_[done + i] = interleaved_[2 * i];
        right_[done + i] = interleaved_[2 * i + 1];
    }
    frame_ += frames;
    return done + frames;
}

/// Returns the number of frames that can be rendered before anything must be changed: long blocks
/// take less time.
std::size_t SampleVoices::framesInStep(std::size_t most)
{
    bool isChanging = swells_.isGliding();
    for (const std::uint32_t index : active_) {
        if (sources_.voice(index).glide.isGliding())
            return std::min(GlidePath::kStep, most);
        isChanging = isChanging || sources_.voice(index).isChanging();
    }
    return isChanging ? std::min(step_, most) : most;
}

void SampleVoices::fade(std::size_t frames)
{
    const auto decay =
        static_cast<float>(std::exp(kDecayPerSecond * static_cast<double>(frames) / rate_));
    const bool areSwellsGliding = swells_.isGliding();
    if (areSwellsGliding)
        swells_.step(frames, rate_);
    for (std::size_t i = active_.size(); i-- > 0;) { // the last takes the place of one that ends
        SampleVoice& voice = sources_.voice(active_[i]);
        const bool isChanging = voice.isChanging();
        if (!voice.step(decay, frames)) {
            stop(voice);
            continue;
        }
        if (voice.phase == Phase::Decaying && voice.gain < static_cast<float>(kFaded))
            end(voice, kEndSeconds);
        if (isChanging || areSwellsGliding)
            setGain(voice);
        if (voice.glide.isGliding()) {
            voice.glide.step(frames);
            setPitch(voice);
        }
    }
}

void SampleVoices::findEnded()
{
    for (std::size_t checks = active_.size() / kChecks + 1; checks > 0 && !active_.empty();
         --checks) {
        nextToCheck_ = (nextToCheck_ + 1) % active_.size();
        SampleVoice& voice = sources_.voice(active_[nextToCheck_]);
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
        release(event);
        break;
    case SampleEvent::Kind::Cut:
        if (current(event.id.number).phase != Phase::Silent)
            end(current(event.id.number), kEndSeconds);
        break;
    case SampleEvent::Kind::Pitch:
        retune(event.id.number, event.pitch, event.glide);
        for (const FollowingSound& next : event.following)
            retune(next.number, event.pitch * next.pitch, event.glide);
        break;
    case SampleEvent::Kind::Bend:
        bend_ = event.pitch;
        for (const std::uint32_t index : active_)
            setPitch(sources_.voice(index));
        break;
    case SampleEvent::Kind::Swell:
        if (active_.empty())
            swells_.jump(event.swell, event.gain);
        else
            swells_.set(event.swell, event.gain);
        break;
    case SampleEvent::Kind::End:
        for (const std::uint32_t index : active_)
            end(sources_.voice(index), kEndSeconds);
        break;
    }
}

void SampleVoices::start(const SampleEvent& event)
{
    SampleVoice& voice = begin(event.id.number, kEndSeconds);
    voice.phase = Phase::Held;
    voice.gain = event.gain;
    voice.pitch = event.pitch;
    voice.glide = {};
    voice.swell = event.swell;
    setCheap(voice, false);
    setGain(voice);
    setPitch(voice);
}

/// Returns the voice of a sample that is to be started, while the other one, if it still sounds,
/// ends within `endSeconds`. See docs/decisions.md, 26.
SampleVoice& SampleVoices::begin(std::uint32_t number, double endSeconds)
{
    if (current(number).phase != Phase::Silent) {
        end(current(number), endSeconds);
        sources_.swap(number);
        if (current(number).phase != Phase::Silent)
            stop(current(number));
    }
    makeRoom();
    SampleVoice& voice = current(number);
    voice.age = ++age_;
    voice.began = frame_;
    voice.place = static_cast<std::uint32_t>(active_.size());
    active_.push_back(sources_.current(number));
    starting_.push_back(voice.source);
    return voice;
}

void SampleVoices::release(const SampleEvent& event)
{
    SampleVoice& voice = current(event.id.number);
    if (voice.phase != Phase::Held)
        return;
    if (event.following.empty()) {
        decay(voice);
        return;
    }
    ALint state = AL_PLAYING;
    if (voice.began != frame_)
        alGetSourcei(voice.source, AL_SOURCE_STATE, &state);
    if (state != AL_PLAYING)
        return; // what has come to its end has nothing to release
    const double held = static_cast<double>(frame_ - voice.began) / rate_;
    const auto next = std::ranges::find_if(
        event.following, [held](const FollowingSound& one) { return held <= one.longestHeld; });
    follow(voice, next == event.following.end() ? event.following.back() : *next);
}

/// Starts the release of a voice that is held. See docs/decisions.md, 149.
void SampleVoices::follow(SampleVoice& voice, const FollowingSound& next)
{
    ReleaseAlignment::Entry entry{0.0F, next.gain};
    double seconds = 0.0;
    if (next.alignment != nullptr) {
        float position = 0.0F;
        if (voice.began != frame_)
            alGetSourcef(voice.source, AL_SAMPLE_OFFSET, &position);
        entry = next.alignment->at(position);
        seconds = next.alignment->crossfadeSeconds();
    }
    const float full = voice.gain * entry.gain;
    const float pitch = voice.pitch * next.pitch;
    const GlidePath glide = voice.glide;
    const std::uint8_t swell = voice.swell;
    if (next.alignment != nullptr)
        end(voice, seconds);
    else
        decay(voice);

    SampleVoice& ringing = begin(next.number, kReleaseEndSeconds);
    ringing.ring(full, seconds * rate_);
    ringing.pitch = pitch;
    ringing.glide = glide;
    ringing.swell = swell;
    setCheap(ringing, relief_ != Relief::None);
    setGain(ringing);
    setPitch(ringing);
    alSourcef(ringing.source, AL_SAMPLE_OFFSET, entry.frame);
}

void SampleVoices::decay(SampleVoice& voice)
{
    voice.phase = Phase::Decaying;
    voice.age = ++age_;
    if (relief_ != Relief::None)
        setCheap(voice, true);
}

void SampleVoices::end(SampleVoice& voice, double seconds)
{
    voice.end(seconds * rate_);
    voice.age = ++age_;
}

void SampleVoices::stop(SampleVoice& voice)
{
    alSourceStop(voice.source);
    std::erase(starting_, voice.source);
    voice.phase = Phase::Silent;
    active_[voice.place] = active_.back();
    sources_.voice(active_[voice.place]).place = voice.place;
    active_.pop_back();
}

void SampleVoices::makeRoom()
{
    if (active_.size() + sources_.limit() / kReserve >= sources_.limit())
        if (SampleVoice* tail = oldest(&SampleVoice::isTail))
            end(*tail, kEndSeconds);
    if (active_.size() < sources_.limit())
        return;
    for (const Phase phase : {Phase::Ending, Phase::Ringing, Phase::Held}) {
        const auto isIn = [phase](const SampleVoice& voice) { return voice.phase == phase; };
        if (SampleVoice* voice = oldest(isIn)) {
            stop(*voice);
            return;
        }
    }
}

template <class Condition> SampleVoice* SampleVoices::oldest(const Condition& condition)
{
    SampleVoice* result = nullptr;
    for (const std::uint32_t index : active_) {
        SampleVoice& voice = sources_.voice(index);
        if (std::invoke(condition, voice) && (result == nullptr || voice.age < result->age))
            result = &voice;
    }
    return result;
}

void SampleVoices::endOldestTails()
{
    tails_.clear();
    for (const std::uint32_t index : active_)
        if (sources_.voice(index).isTail())
            tails_.push_back(&sources_.voice(index));
    constexpr std::size_t kPart = 8;
    const std::size_t count = (tails_.size() + kPart - 1) / kPart;
    std::ranges::nth_element(tails_, tails_.begin() + static_cast<std::ptrdiff_t>(count), {},
                             &SampleVoice::age);
    for (std::size_t i = 0; i < count; ++i)
        end(*tails_[i], kEndSeconds);
}

void SampleVoices::setGain(const SampleVoice& voice)
{
    alSourcef(voice.source, AL_GAIN, voice.level * voice.gain * swells_.gain(voice.swell));
}

/// Lets the voices of a sample that sound, both of them if it was started again, glide to a pitch.
void SampleVoices::retune(std::uint32_t number, float pitch, double seconds)
{
    for (std::uint32_t index = 2 * number; index < 2 * number + 2; ++index) {
        SampleVoice& voice = sources_.voice(index);
        if (voice.phase == Phase::Silent || voice.pitch == pitch)
            continue;
        voice.glideTo(pitch, seconds * rate_);
        setPitch(voice);
    }
}

void SampleVoices::setPitch(const SampleVoice& voice)
{
    alSourcef(voice.source, AL_PITCH, voice.heardPitch() * bend_ * tuning_);
}

void SampleVoices::setCheap(SampleVoice& voice, bool cheap)
{
    if (voice.isCheap == cheap)
        return;
    voice.isCheap = cheap;
    sources_.device().setResampler(voice.source, cheap ? OpenALDevice::Resampler::Linear
                                                       : OpenALDevice::Resampler::Best);
}

} // namespace velmora
