#include "sequencer/timeEntries.h"

#include <algorithm>

namespace velmora {

namespace {

/// The list of a kind of entry, and what replaces it.
template <class Entry> struct ListOf;
template <> struct ListOf<Tempo> {
    static constexpr auto get = &MusicalTime::tempos;
    static constexpr auto set = &MusicalTime::setTempos;
};
template <> struct ListOf<TimeSignature> {
    static constexpr auto get = &MusicalTime::timeSignatures;
    static constexpr auto set = &MusicalTime::setTimeSignatures;
};
template <> struct ListOf<KeySignature> {
    static constexpr auto get = &MusicalTime::keySignatures;
    static constexpr auto set = &MusicalTime::setKeySignatures;
};
template <> struct ListOf<Marker> {
    static constexpr auto get = &MusicalTime::markers;
    static constexpr auto set = &MusicalTime::setMarkers;
};

/// Lets `change` change the list of the entry's kind.
template <class Change>
MusicalTime withList(MusicalTime time, const TimeEntry& entry, const Change& change)
{
    std::visit(
        [&]<class Entry>(const Entry& one) {
            std::vector<Entry> list = (time.*ListOf<Entry>::get)();
            change(list, one);
            (time.*ListOf<Entry>::set)(std::move(list));
        },
        entry);
    return time;
}

} // namespace

double stepOf(const TimeEntry& entry)
{
    return std::visit([](const auto& one) { return one.step; }, entry);
}

TimeEntry movedTo(TimeEntry entry, double step)
{
    std::visit([=](auto& one) { one.step = step; }, entry);
    return entry;
}

std::vector<TimeEntry> entriesOf(const MusicalTime& time)
{
    std::vector<TimeEntry> entries(time.tempos().begin(), time.tempos().end());
    entries.insert(entries.end(), time.timeSignatures().begin(), time.timeSignatures().end());
    entries.insert(entries.end(), time.keySignatures().begin(), time.keySignatures().end());
    entries.insert(entries.end(), time.markers().begin(), time.markers().end());
    std::ranges::stable_sort(entries, {}, stepOf);
    return entries;
}

MusicalTime with(const MusicalTime& time, const TimeEntry& entry)
{
    // Of several at one step the last one counts.
    return withList(time, entry, [](auto& list, const auto& one) { list.push_back(one); });
}

MusicalTime without(const MusicalTime& time, const TimeEntry& entry)
{
    return withList(time, entry, [](auto& list, const auto& one) { std::erase(list, one); });
}

} // namespace velmora
