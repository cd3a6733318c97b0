#include "sequencer/Controllers.h"

#include "midi/MidiFileEvents.h"
#include "midi/messages.h"
#include "sequencer/FileEdits.h"
#include "sequencer/SequenceTime.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <iterator>
#include <map>
#include <optional>
#include <set>
#include <tuple>
#include <utility>
#include <vector>

namespace velmora {

namespace {

constexpr int kFirstHigh = 64;

/// A value that lasts this long, in steps, is always heard.
constexpr double kLasting = 2.0;

/// Banks, data entry and parameters select or edit a sound, and the volume is the voice's.
bool isKept(int number)
{
    constexpr std::array kOther = {0, 6, 7, 32, 38, 96, 97, 98, 99, 100, 101};
    return number < midi::kAllSoundOff && std::ranges::find(kOther, number) == kOther.end();
}

std::optional<ControllerEvent> controllerOf(const FileEvent& event, double step)
{
    const auto byte = [&](std::size_t i) { return static_cast<std::uint8_t>(event.data[i]); };
    const auto channel = static_cast<std::uint8_t>(event.status & midi::kChannelMask);
    switch (event.status & midi::kKindMask) {
    case midi::kControlChange:
        if (isKept(byte(0)))
            return ControllerEvent{step, channel, byte(0), byte(1)};
        break;
    case midi::kChannelPressure:
        return ControllerEvent{step, channel, kPressure, byte(0)};
    case midi::kPitchBend:
        return ControllerEvent{step, channel, kPitchWheel,
                               static_cast<std::uint16_t>(byte(0) + 128 * byte(1))};
    default:
        break;
    }
    return std::nullopt;
}

double stepOfEvent(const FileEvent& event, double ticksPerBeat)
{
    return static_cast<double>(event.tick) / ticksPerBeat * kStepsPerBeat;
}

FileEdits::Added written(const ControllerEvent& event, std::size_t track)
{
    const auto message = [&](int kind, const std::string& data) {
        return FileEdits::Added{track, event.step, static_cast<std::uint8_t>(kind | event.channel),
                                data};
    };
    const auto low = static_cast<char>(event.value & 0x7F);
    if (event.number == kPressure)
        return message(midi::kChannelPressure, {low});
    if (event.number == kPitchWheel)
        return message(midi::kPitchBend, {low, static_cast<char>(event.value >> 7)});
    return message(midi::kControlChange, {static_cast<char>(event.number), low});
}

/// Returns the first track with an event of each channel, or the one that was added for it, or else
/// the first of all.
std::array<std::size_t, midi::kChannels> tracksOf(const MidiFileEvents& file)
{
    std::array<std::size_t, midi::kChannels> tracks{};
    for (std::size_t track = file.tracks.size(); track-- > 0;) {
        if (const auto channel = file.tracks[track].channel)
            tracks.at(*channel) = track;
        for (const FileEvent& event : file.tracks[track].events)
            if (event.status < midi::kFirstSystemStatus)
                tracks[event.status & midi::kChannelMask] = track;
    }
    return tracks;
}

/// Where an event stands: its time, channel and controller.
using Place = std::tuple<double, int, int>;

Place placeOf(const ControllerEvent& event)
{
    return {event.step, event.channel, event.number};
}

/// Returns the places, in order, at which two lists differ.
std::vector<Place> differences(Controllers a, Controllers b)
{
    std::ranges::stable_sort(a, {}, placeOf);
    std::ranges::stable_sort(b, {}, placeOf);
    std::vector<Place> places;
    for (auto i = a.begin(), j = b.begin(); i != a.end() || j != b.end();) {
        const bool isInA = j == b.end() || (i != a.end() && placeOf(*i) < placeOf(*j));
        const Place place = placeOf(isInA ? *i : *j);
        const auto isElsewhere = [&](const ControllerEvent& event) {
            return placeOf(event) != place;
        };
        const auto iEnd = std::find_if(i, a.end(), isElsewhere);
        const auto jEnd = std::find_if(j, b.end(), isElsewhere);
        if (!std::equal(i, iEnd, j, jEnd))
            places.push_back(place);
        i = iEnd;
        j = jEnd;
    }
    return places;
}

/// From the first to the last move of each controller.
class Spans {
public:
    explicit Spans(const Controllers& recorded)
    {
        for (const ControllerEvent& event : recorded) {
            auto& [first, last] =
                spans_.try_emplace({event.channel, event.number}, event.step, event.step)
                    .first->second;
            first = std::min(first, event.step);
            last = std::max(last, event.step);
        }
    }

    bool contain(const ControllerEvent& event) const
    {
        const auto span = spans_.find({event.channel, event.number});
        return span != spans_.end() && event.step >= span->second.first &&
               event.step <= span->second.second;
    }

private:
    std::map<std::pair<int, int>, std::pair<double, double>> spans_;
};

} // namespace

int largestValue(int number)
{
    return number == kPitchWheel ? 16383 : 127;
}

int restingValue(int number)
{
    constexpr int kBalance = 8, kPan = 10, kFirstSound = 70, kLastSound = 79;
    if (number == kPitchWheel)
        return midi::kWheelCentre;
    if (number == midi::kExpression)
        return 127;
    const bool isCentred =
        number == kBalance || number == kPan || (number >= kFirstSound && number <= kLastSound);
    return isCentred ? 64 : 0;
}

bool isSwitch(int number)
{
    return number == midi::kSustain || number == midi::kSostenuto || number == midi::kSoft;
}

Controllers controllersOf(const MidiFileEvents& file)
{
    Controllers controllers;
    for (const FileTrack& track : file.tracks)
        for (const FileEvent& event : track.events)
            if (const auto controller =
                    controllerOf(event, stepOfEvent(event, file.header.ticksPerBeat)))
                controllers.push_back(*controller);
    std::ranges::stable_sort(controllers, {}, &ControllerEvent::step);
    return controllers;
}

void editControllers(const MidiFileEvents& file, const Controllers& controllers, FileEdits& edits)
{
    const Controllers before = controllersOf(file);
    if (before == controllers)
        return;
    const std::vector<Place> changed = differences(before, controllers);
    const auto isChanged = [changed](const ControllerEvent& event) {
        return std::ranges::binary_search(changed, placeOf(event));
    };
    edits.drop([isChanged, ticksPerBeat = file.header.ticksPerBeat](const FileEvent& event) {
        const auto controller = controllerOf(event, stepOfEvent(event, ticksPerBeat));
        return controller && isChanged(*controller);
    });
    const auto tracks = tracksOf(file);
    for (const ControllerEvent& event : controllers)
        if (isChanged(event))
            edits.add(written(event, tracks.at(event.channel)));
}

Controllers valuesBefore(const Controllers& controllers, double step)
{
    std::map<std::pair<int, int>, ControllerEvent> last;
    for (const ControllerEvent& event : controllers) {
        const auto resting = static_cast<std::uint16_t>(restingValue(event.number));
        ControllerEvent& entry =
            last.try_emplace({event.channel, event.number},
                             ControllerEvent{step, event.channel, event.number, resting})
                .first->second;
        if (event.step < step)
            entry.value = event.value;
    }
    Controllers values;
    for (const auto& [controller, event] : last)
        values.push_back(event);
    return values;
}

Controllers valuesBeforePass(const Controllers& controllers, double from, double to)
{
    const auto first = std::ranges::lower_bound(controllers, from, {}, &ControllerEvent::step);
    const auto last =
        std::ranges::lower_bound(first, controllers.end(), to, {}, &ControllerEvent::step);
    std::set<std::pair<int, int>> missing;
    for (auto event = first; event != last; ++event)
        missing.emplace(event->channel, event->number);
    Controllers values;
    for (auto event = first; event != controllers.begin() && !missing.empty();) {
        --event;
        if (missing.erase({event->channel, event->number}) > 0)
            values.push_back({from, event->channel, event->number, event->value});
    }
    for (const auto& [channel, number] : missing)
        values.push_back({from, static_cast<std::uint8_t>(channel),
                          static_cast<std::uint8_t>(number),
                          static_cast<std::uint16_t>(restingValue(number))});
    return values;
}

void letGo(Controllers& recorded, double step)
{
    std::ranges::stable_sort(recorded, {}, &ControllerEvent::step);
    std::map<std::pair<int, int>, ControllerEvent> last;
    for (const ControllerEvent& event : recorded)
        last.insert_or_assign({event.channel, event.number}, event);
    for (auto& [controller, event] : last) {
        const int resting = restingValue(event.number);
        const bool isHeld =
            isSwitch(event.number) || event.number == kPitchWheel || event.number == kPressure;
        if (isHeld && event.value != resting)
            recorded.push_back({std::max(step, event.step), event.channel, event.number,
                                static_cast<std::uint16_t>(resting)});
    }
}

bool holds(const Controllers& controllers, const ControllerEvent& event)
{
    auto place = std::ranges::lower_bound(controllers, event.step, {}, &ControllerEvent::step);
    for (; place != controllers.end() && place->step == event.step; ++place)
        if (*place == event)
            return true;
    return false;
}

Controllers replacedBy(const Controllers& recorded, const Controllers& controllers)
{
    const Spans spans(recorded);
    Controllers replaced;
    std::ranges::copy_if(controllers, std::back_inserter(replaced),
                         [&](const ControllerEvent& event) { return spans.contain(event); });
    return replaced;
}

Controllers withRecorded(const Controllers& controllers, Controllers recorded)
{
    const Spans spans(recorded);
    Controllers result;
    std::ranges::copy_if(controllers, std::back_inserter(result),
                         [&](const ControllerEvent& event) { return !spans.contain(event); });
    result.insert(result.end(), recorded.begin(), recorded.end());
    std::ranges::stable_sort(result, {}, &ControllerEvent::step);
    return result;
}

Controllers thinned(const Controllers& controllers, int tolerance)
{
    std::map<std::pair<int, int>, double> nextSteps; // of each controller, seen from the end
    std::vector<double> lasts(controllers.size());
    for (std::size_t i = controllers.size(); i-- > 0;) {
        const ControllerEvent& event = controllers[i];
        const auto [next, isLast] = nextSteps.try_emplace({event.channel, event.number}, 0.0);
        lasts[i] = isLast ? kLasting : next->second - event.step;
        next->second = event.step;
    }
    std::map<std::pair<int, int>, int> values;
    Controllers kept;
    for (std::size_t i = 0; i < controllers.size(); ++i) {
        const ControllerEvent& event = controllers[i];
        const auto [value, isFirst] =
            values.try_emplace({event.channel, event.number}, static_cast<int>(event.value));
        const int before = isFirst ? restingValue(event.number) : value->second;
        const int scale = event.number == kPitchWheel ? 128 : 1;
        const int change = std::abs(event.value - before);
        const bool isHeard = isSwitch(event.number)
                                 ? (event.value >= kFirstHigh) != (before >= kFirstHigh)
                             : lasts[i] >= kLasting ? change > 0
                                                    : change > tolerance * scale;
        if (isFirst && !isHeard)
            value->second = before;
        if (!isHeard)
            continue;
        value->second = event.value;
        kept.push_back(event);
    }
    return kept;
}

} // namespace velmora
