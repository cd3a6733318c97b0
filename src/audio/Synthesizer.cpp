#include "audio/Synthesizer.h"

#include "base/Log.h"
#include "midi/messages.h"
#include "platform/quiet.h"

#include <algorithm>
#include <optional>

namespace velmora {

namespace {

constexpr std::size_t kLanes = 12;
constexpr int kCentreBend = 8192;
constexpr int kNoBend = -1;

std::size_t channelOf(int status)
{
    return static_cast<std::size_t>(status & midi::kChannelMask);
}

/// The index of the lane that sounds a channel. Channel 9 is General MIDI's percussion, and nothing
/// is played on channels 13 to 15.
std::optional<std::size_t> laneIndex(std::size_t channel)
{
    if (channel < 9)
        return channel;
    return channel >= 10 && channel <= 12 ? std::optional(channel - 1) : std::nullopt;
}

/// Returns the value of a pitch bend, clamped to 14 bits.
int bendOf(int data1, int data2)
{
    return std::clamp(data1 + 128 * data2, 0, 2 * kCentreBend - 1);
}

} // namespace

Synthesizer::Synthesizer(double rate, const std::vector<std::filesystem::path>& banks)
    : reverb_(rate), queue_(kQueue)
{
    quietSoundLibraries();
    lastBend_.fill(kCentreBend);
    auto first = std::make_unique<SynthesizerLane>(rate);
    const auto loaded = std::ranges::find_if(banks, [&](const std::filesystem::path& path) {
        if (first->loadBank(path.c_str()))
            return true;
        logger("audio").warn("cannot load the SoundFont {}", path.string());
        return false;
    });
    if (loaded == banks.end()) {
        logger("audio").warn("no SoundFont: the General MIDI synthesizer is silent");
        return;
    }
    bank_ = *loaded;
    lanes_.push_back(std::move(first));
    while (lanes_.size() < kLanes)
        lanes_.push_back(std::make_unique<SynthesizerLane>(rate, lanes_.front().get()));
}

Synthesizer::~Synthesizer()
{
    // The first lane owns the bank that the others borrow.
    while (!lanes_.empty())
        lanes_.pop_back();
}

SynthesizerLane* Synthesizer::laneOf(std::size_t channel)
{
    const auto index = laneIndex(channel);
    return !index || lanes_.empty() ? nullptr : lanes_[*index].get();
}

void Synthesizer::midiEvent(int status, int data1, int data2)
{
    // Retuning sends the bends of all channels, and most of them are unchanged.
    const bool isBend = (status & midi::kKindMask) == midi::kPitchBend;
    int& lastBend = lastBend_[channelOf(status)];
    if (isBend && bendOf(data1, data2) == lastBend)
        return;

    const std::size_t written = written_.load(std::memory_order_relaxed);
    if (written - read_.load(std::memory_order_acquire) == kQueue) {
        overflowed_.store(true, std::memory_order_release);
        return;
    }
    queue_[written % kQueue] = {status, data1, data2};
    written_.store(written + 1, std::memory_order_release);
    if (isBend)
        lastBend = bendOf(data1, data2);
}

void Synthesizer::takeEvents()
{
    // Read before the queue, so that all notes from before the lost message are silenced.
    const bool overflowed = overflowed_.exchange(false, std::memory_order_acquire);
    const std::size_t written = written_.load(std::memory_order_acquire);
    std::size_t read = read_.load(std::memory_order_relaxed);
    std::array<int, 16> bends{};
    bends.fill(kNoBend);
    for (; read != written; ++read) {
        const Event& event = queue_[read % kQueue];
        // Only the last of several bends is applied: see docs/decisions.md, 129.
        const int kind = event.status & midi::kKindMask;
        const bool isNote = kind == midi::kNoteOn || kind == midi::kNoteOff;
        if (kind == midi::kPitchBend)
            bends[channelOf(event.status)] = bendOf(event.data1, event.data2);
        else if (!overflowed || !isNote)
            apply(event);
    }
    read_.store(read, std::memory_order_release);

    // A lost message may have been a note-off: see docs/decisions.md, 130.
    for (std::size_t channel = 0; channel < bends.size(); ++channel) {
        SynthesizerLane* lane = laneOf(channel);
        if (lane != nullptr && overflowed)
            silence(*lane);
        if (lane != nullptr && bends[channel] != kNoBend)
            lane->setCents(200.0 * (bends[channel] - kCentreBend) / kCentreBend);
    }
}

void Synthesizer::silence(SynthesizerLane& lane)
{
    lane.allSoundsOff();
    reverb_.silence();
}

void Synthesizer::apply(const Event& event)
{
    SynthesizerLane* lane = laneOf(channelOf(event.status));
    if (lane == nullptr)
        return;
    switch (event.status & midi::kKindMask) {
    case midi::kNoteOff:
        lane->noteOff(event.data1);
        break;
    case midi::kNoteOn:
        lane->noteOn(event.data1, event.data2);
        break;
    case midi::kControlChange:
        if (event.data1 == midi::kAllSoundOff)
            silence(*lane);
        else
            lane->controlChange(event.data1, event.data2);
        break;
    case midi::kProgramChange:
        lane->programChange(event.data1);
        break;
    default:
        break;
    }
}

void Synthesizer::render(float* left, float* right, std::size_t frames, double /*start*/)
{
    takeEvents();
    std::fill_n(left, frames, 0.0F);
    std::fill_n(right, frames, 0.0F);
    for (const auto& lane : lanes_)
        lane->mix(left, right, frames);
    reverb_.process(left, right, frames);
}

} // namespace velmora
