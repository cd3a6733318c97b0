#include "audio/Synthesizer.h"

#include "base/Log.h"
#include "midi/messages.h"
#include "platform/quiet.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace velmora {

namespace {

constexpr int kCentreBend = 8192;

std::size_t channelOf(int status)
{
    return static_cast<std::size_t>(status & midi::kChannelMask);
}

/// Returns the cents of a pitch bend, whose value is clamped to 14 bits.
double centsOf(int data1, int data2)
{
    const int value = std::clamp(data1 + 128 * data2, 0, 2 * kCentreBend - 1);
    return 200.0 * (value - kCentreBend) / kCentreBend;
}

} // namespace

Synthesizer::Synthesizer(double rate, const std::vector<std::filesystem::path>& banks)
    : rate_(rate), reverb_(rate)
{
    quietSoundLibraries();
    for (auto path = banks.begin(); path != banks.end() && !bank_; ++path) {
        try {
            bank_.emplace(*path);
        } catch (const std::runtime_error&) {
            logger("audio").warn("cannot load the SoundFont {}", path->string());
        }
    }
    if (!bank_) {
        logger("audio").warn("no SoundFont: the General MIDI synthesizer is silent");
        return;
    }
    while (lanes_.size() < kLanes)
        lanes_.push_back(std::make_unique<SynthesizerLane>(rate, *bank_));
    for (std::size_t i = 0; i < kOwnLanes; ++i)
        ownLanes_[i] = i;
}

std::size_t Synthesizer::orderOf(const Event& event)
{
    if (event.status == kWheel)
        return kWheelOrder;
    if (event.status == kControlPart)
        return kControlOrder;
    if (event.status <= kTuneKey)
        return kWheelOrder + 1 + static_cast<std::size_t>(event.data1);
    return channelOf(event.status);
}

/// The index of a channel's own lane. Nothing is played on channels 13 to 15.
std::optional<std::size_t> Synthesizer::ownLaneOf(std::size_t channel)
{
    constexpr std::size_t kPercussion = 9;
    if (channel == kPercussion)
        return kPercussionLane;
    if (channel > kPercussionLane)
        return std::nullopt;
    return channel < kPercussion ? channel : channel - 1;
}

std::vector<Program> Synthesizer::programs() const
{
    return bank_ ? bank_->programs() : std::vector<Program>();
}

void Synthesizer::midiEvent(int status, int data1, int data2)
{
    const int kind = status & midi::kKindMask;
    if (kind != midi::kPitchBend) {
        const auto key = static_cast<std::size_t>(data1);
        const bool isCorrected = kind == midi::kNoteOn && key < kKeys;
        send({due_,
              status,
              data1,
              data2,
              0.0,
              isCorrected ? corrections_.at(part_)[key] : 0.0,
              0,
              0,
              {},
              part_});
        return;
    }
    // Retuning sends the bends of all channels, and most of them are unchanged.
    const double cents = centsOf(data1, data2);
    if (sentBends_[channelOf(status)].exchange(cents) != cents)
        send({due_, status, data1, data2, cents, 0.0, 0, 0, glide_, 0});
}

void Synthesizer::keyOn(int key, int velocity, int sounding, double cents)
{
    send({due_,
          kKeyOn,
          key,
          velocity,
          cents,
          corrections_.at(part_).at(static_cast<std::size_t>(sounding)),
          sounding,
          0,
          {},
          part_});
}

void Synthesizer::keyOff(int key)
{
    send({due_, kKeyOff, key, 0, 0.0, 0.0, 0, 0, {}, part_});
}

void Synthesizer::tuneKey(int key, double cents)
{
    send({due_, kTuneKey, key, 0, cents, 0.0, 0, 0, glide_, part_});
}

void Synthesizer::bend(double cents)
{
    sentBends_.back() = cents;
    send({due_, kWheel, 0, 0, cents});
}

void Synthesizer::controlPart(int number, int value)
{
    send({due_, kControlPart, number, value, 0.0, 0.0, 0, 0, {}, part_});
}

void Synthesizer::send(const Event& event)
{
    if (!queue_.push(event))
        overflowed_.store(true, std::memory_order_release);
}

// Messages of a channel keep their order, and so do those of a key.
void Synthesizer::receive()
{
    if (overflowed_.exchange(false, std::memory_order_acquire))
        silenceAfterOverflow();
    for (; queue_.front() != nullptr && !pending_.isFull(); queue_.pop()) {
        Event event = *queue_.front();
        if (event.status == midi::kControlChange && event.data1 == midi::kAllSoundOff)
            event.due = std::ranges::max(dues_); // it ends the keys as well
        double& due = dues_[orderOf(event)];
        due = event.due = std::max(due, event.due);
        pending_.add(event);
    }
}

void Synthesizer::apply(const Event& event)
{
    if (event.status == kWheel) {
        wheel_ = event.cents;
        applyWheel();
        return;
    }
    if (event.status == kControlPart) {
        for (const auto& lane : lanes_)
            lane->control(event.part, event.data1, event.data2);
        return;
    }
    if (lanes_.empty())
        return;
    if (event.status <= kTuneKey) {
        applyToKeys(event);
        return;
    }
    const auto own = ownLaneOf(channelOf(event.status));
    if (!own)
        return;
    switch (event.status & midi::kKindMask) {
    case midi::kNoteOff:
        forLanes(*own, [&](SynthesizerLane& lane) { lane.noteOff({event.part, event.data1}); });
        break;
    case midi::kNoteOn:
        noteOn(*own, event);
        break;
    case midi::kControlChange:
    case midi::kProgramChange:
        control(*own, event);
        if (*own == 0)
            control(kKeyLane, event);
        break;
    case midi::kPitchBend:
        bends_[*own] = event.cents;
        applyBends(*own, event.glide);
        break;
    default:
        break;
    }
}

void Synthesizer::control(std::size_t own, const Event& event)
{
    if ((event.status & midi::kKindMask) == midi::kProgramChange)
        forLanes(own, [&](SynthesizerLane& lane) { lane.programChange(event.part, event.data1); });
    else if (event.data1 == midi::kAllSoundOff)
        silence(own);
    else
        forLanes(own, [&](SynthesizerLane& lane) {
            lane.controlChange(event.part, event.data1, event.data2);
        });
}

void Synthesizer::noteOn(std::size_t own, const Event& event)
{
    const PartKey key{event.part, event.data1};
    // A key that is struck again is released first, as on a single lane.
    forLanes(own, [&](SynthesizerLane& lane) { lane.noteOff(key); });
    if (event.data2 == 0 || static_cast<std::size_t>(event.data1) >= kKeys)
        return;
    if (own == kPercussionLane) {
        lanes_[own]->noteOn(key, event.data2, 0.0);
        return;
    }
    const auto idle = idleLaneFor(own);
    const std::size_t lane = idle.value_or(own);
    if (lane != own)
        lanes_[lane]->followPart(key.part, *lanes_[own]);
    noteStarted(key, {lane, 0, event.data1, bends_[own]}, idle.has_value());
    lanes_[lane]->noteOn(key, event.data2, event.correction);
}

void Synthesizer::noteStarted(PartKey key, const KeyNote& note, bool isFirst)
{
    if (isFirst) {
        ++turns_[note.lane];
        firstKeys_[note.lane] = key;
    }
    played_.set(key.part);
    KeyNote& started = noteOf(key);
    started = note;
    started.turn = turns_[note.lane];
}

std::optional<std::size_t> Synthesizer::idleLaneFor(std::size_t own)
{
    if (lanes_[own]->isIdle())
        return own;
    for (std::size_t i = kOwnLanes; i < lanes_.size(); ++i) {
        if (!lanes_[i]->isIdle())
            continue;
        ownLanes_[i] = own;
        lanes_[i]->followPitch(*lanes_[own]);
        laneCents_[i] = laneCents_[own];
        return i;
    }
    return std::nullopt;
}

void Synthesizer::applyBends(std::size_t own, const Glide& glide)
{
    for (std::size_t i = 0; i < lanes_.size(); ++i) {
        if (ownLanes_[i] != own)
            continue;
        laneCents_[i] = bends_[own];
        lanes_[i]->setCents(laneCents_[i], glide);
    }
}

void Synthesizer::applyWheel()
{
    for (const auto& lane : lanes_)
        lane->setWheel(wheel_);
}

void Synthesizer::silence(std::size_t own)
{
    forLanes(own, [](SynthesizerLane& lane) { lane.allSoundsOff(); });
    reverb_->silence();
}

// See docs/decisions.md, 130.
void Synthesizer::silenceAfterOverflow()
{
    // The lost message may have been a note-off.
    const auto applyUnlessNote = [this](const Event& event) {
        const int kind = event.status & midi::kKindMask;
        const bool isOfKey = event.status != kWheel && event.status <= kTuneKey;
        if (kind != midi::kNoteOn && kind != midi::kNoteOff && !isOfKey)
            apply(event);
    };
    std::ranges::for_each(pending_.all(), applyUnlessNote);
    pending_.clear();
    for (; queue_.front() != nullptr; queue_.pop())
        applyUnlessNote(*queue_.front());
    // It may also have been a bend.
    wheel_ = sentBends_.back();
    applyWheel();
    for (std::size_t channel = 0; channel < midi::kChannels; ++channel) {
        if (const auto own = ownLaneOf(channel)) {
            bends_[*own] = sentBends_[channel];
            applyBends(*own, {});
            silence(*own);
        }
    }
    if (!lanes_.empty())
        silence(kKeyLane);
}

void Synthesizer::setRate(double rate)
{
    if (rate == rate_)
        return;
    rate_ = rate;
    reverb_.emplace(rate);
    // FluidSynth cannot change its rate.
    rate = std::max(rate, SynthesizerLane::kLowestRate);
    for (auto& lane : lanes_) {
        auto next = std::make_unique<SynthesizerLane>(rate, *bank_);
        next->followPitch(*lane);
        for (std::size_t part = 0; part < kParts; ++part)
            next->followPart(part, *lane);
        lane = std::move(next);
    }
}

void Synthesizer::render(float* left, float* right, std::size_t frames, double start)
{
    std::fill_n(left, frames, 0.0F);
    std::fill_n(right, frames, 0.0F);
    receive();
    const std::span<const Event> events = pending_.find(frames, start, rate_);
    auto event = events.begin();
    for (std::size_t done = 0; done < frames;) {
        for (; event != events.end() && event->frame <= done; ++event)
            apply(*event);
        const std::size_t next = event == events.end() ? frames : event->frame;
        for (const auto& lane : lanes_)
            lane->mix(left + done, right + done, next - done);
        done = next;
    }
    pending_.removeFirst(events.size());
    reverb_->process(left, right, frames);
    std::size_t voices = 0;
    for (const auto& lane : lanes_)
        voices += lane->voices();
    voices_ = voices;
}

} // namespace velmora
