#include "sound/Console.h"

#include <algorithm>
#include <cassert>
#include <utility>

namespace velmora {

namespace {

bool isOnKeyboard(int key)
{
    return key >= 0 && key <= kLastKey;
}

bool isSet(const std::vector<bool>& drawn, std::size_t position)
{
    return position < drawn.size() && drawn[position];
}

} // namespace

Console::Console(ConsoleDefinition definition, std::size_t ranks, Windchest& chest)
    : definition_(std::move(definition)), chest_(chest), manuals_(definition_.divisions.size()),
      trackers_(definition_.stops.size()), wanted_(ranks * kKeys)
{
    for (const ConsoleDefinition::Stop& stop : definition_.stops) {
        manuals_.at(stop.division).stops.push_back(state_.drawn.stops.size());
        state_.drawn.stops.push_back(stop.isDrawn);
        all_.stops.push_back(true);
    }
    for (const ConsoleDefinition::Coupler& coupler : definition_.couplers) {
        assert(coupler.to < manuals_.size());
        manuals_.at(coupler.from).couplers.push_back(state_.drawn.couplers.size());
        state_.drawn.couplers.push_back(coupler.isDrawn);
        all_.couplers.push_back(coupler.shift == 0);
    }
    state_.gains.assign(definition_.stops.size(), 1.0F);
    state_.swells.assign(definition_.divisions.size(), 1.0F);
    none_.stops.assign(definition_.stops.size(), false);
    none_.couplers.assign(definition_.couplers.size(), false);
    beforeTutti_ = scratch_ = none_;
    connectPipes(ranks);
}

void Console::connectPipes(std::size_t ranks)
{
    for (std::size_t stop = 0; stop < trackers_.size(); ++stop) {
        Trackers& trackers = trackers_[stop];
        const auto forEachPipe = [&](auto use) {
            for (const ConsoleDefinition::Pipes& pipes : definition_.stops[stop].pipes) {
                for (int i = 0; i < pipes.count && pipes.firstPipe + i <= kLastKey; ++i) {
                    const int key = pipes.firstKey + i;
                    const int pipe = pipes.firstPipe + i;
                    if (isOnKeyboard(key) && isOnKeyboard(pipe) && pipes.rank < ranks)
                        use(static_cast<std::size_t>(key),
                            static_cast<Pipe>(pipes.rank * kKeys + static_cast<std::size_t>(pipe)));
                }
            }
        };
        forEachPipe([&](std::size_t key, Pipe) { ++trackers.begins[key + 1]; });
        for (std::size_t key = 0; key < kKeys; ++key)
            trackers.begins[key + 1] += trackers.begins[key];
        trackers.pipes.resize(trackers.begins.back());
        auto next = trackers.begins;
        forEachPipe([&](std::size_t key, Pipe pipe) { trackers.pipes[next[key]++] = pipe; });
    }
}

/// Calls `use(division, key)` for each division that a key plays, as far as it has the key.
template <class Use> void Console::forEachRoute(std::size_t division, int key, Use use) const
{
    use(division, key);
    for (const std::size_t position : manuals_[division].couplers) {
        const ConsoleDefinition::Coupler& coupler = definition_.couplers[position];
        if (state_.drawn.couplers[position] && isOnKeyboard(key + coupler.shift))
            use(coupler.to, key + coupler.shift);
    }
}

/// Calls `use(key, velocity)` for each key that is held.
template <class Use> void Console::forEachHeldKey(const Manual& manual, Use use) const
{
    for (std::size_t key = 0; key < kKeys && manual.held.any(); ++key)
        if (manual.held[key])
            use(static_cast<int>(key), manual.velocities[key]);
}

/// Starts or ends what a stop has for a key.
void Console::change(std::size_t stop, std::size_t key, float velocity, bool starts)
{
    const Trackers& trackers = trackers_[stop];
    for (std::size_t i = trackers.begins[key]; i < trackers.begins[key + 1]; ++i) {
        const Pipe pipe = trackers.pipes[i];
        const std::size_t rank = pipe / kKeys;
        const int pipeKey = static_cast<int>(pipe % kKeys);
        if (starts && wanted_[pipe]++ == 0)
            chest_.startPipe(rank, pipeKey, velocity, state_.gains[stop]);
        else if (!starts && --wanted_[pipe] == 0)
            chest_.stopPipe(rank, pipeKey);
    }
}

/// Starts or ends what the drawn stops of a division have for a key.
void Console::change(std::size_t division, int key, float velocity, bool starts)
{
    for (const std::size_t stop : manuals_[division].stops)
        if (state_.drawn.stops[stop])
            change(stop, static_cast<std::size_t>(key), velocity, starts);
}

void Console::press(std::size_t division, int key, float velocity)
{
    if (division >= manuals_.size() || key < definition_.divisions[division].lowestKey ||
        key > definition_.divisions[division].highestKey || !isOnKeyboard(key))
        return;
    Manual& manual = manuals_[division];
    const auto slot = static_cast<std::size_t>(key);
    if (manual.held[slot])
        return;
    manual.held.set(slot);
    manual.velocities[slot] = velocity;
    forEachRoute(division, key,
                 [&](std::size_t to, int sounding) { change(to, sounding, velocity, true); });
}

void Console::release(std::size_t division, int key)
{
    if (division >= manuals_.size() || !isOnKeyboard(key))
        return;
    Manual& manual = manuals_[division];
    const auto slot = static_cast<std::size_t>(key);
    if (!manual.held[slot])
        return;
    manual.held.reset(slot);
    forEachRoute(division, key,
                 [&](std::size_t to, int sounding) { change(to, sounding, 0.0F, false); });
}

void Console::forgetKeys()
{
    for (Manual& manual : manuals_)
        manual.held.reset();
    std::ranges::fill(wanted_, 0);
}

bool Console::isDrawn(std::size_t stop) const
{
    return isSet(state_.drawn.stops, stop);
}

void Console::draw(std::size_t stop, bool isDrawn)
{
    if (stop >= trackers_.size() || state_.drawn.stops[stop] == isDrawn)
        return;
    state_.drawn.stops[stop] = isDrawn;
    const std::size_t division = definition_.stops[stop].division;
    for (std::size_t from = 0; from < manuals_.size(); ++from)
        forEachHeldKey(manuals_[from], [&](int key, float velocity) {
            forEachRoute(from, key, [&](std::size_t to, int sounding) {
                if (to == division)
                    change(stop, static_cast<std::size_t>(sounding), velocity, isDrawn);
            });
        });
}

void Console::drawCoupler(std::size_t coupler, bool isDrawn)
{
    if (coupler >= definition_.couplers.size() || state_.drawn.couplers[coupler] == isDrawn)
        return;
    state_.drawn.couplers[coupler] = isDrawn;
    const ConsoleDefinition::Coupler& drawn = definition_.couplers[coupler];
    forEachHeldKey(manuals_[drawn.from], [&](int key, float velocity) {
        if (isOnKeyboard(key + drawn.shift))
            change(drawn.to, key + drawn.shift, velocity, isDrawn);
    });
}

void Console::startRank(std::size_t rank)
{
    if (rank >= wanted_.size() / kKeys)
        return;
    const auto isOfRank = [&](Pipe pipe) { return pipe / kKeys == rank; };
    std::array<bool, kKeys> isStarted{};
    const auto start = [&](std::size_t stop, int key, float velocity) {
        const Trackers& trackers = trackers_[stop];
        const auto slot = static_cast<std::size_t>(key);
        for (std::size_t i = trackers.begins[slot]; i < trackers.begins[slot + 1]; ++i) {
            const Pipe pipe = trackers.pipes[i];
            if (isOfRank(pipe) && !std::exchange(isStarted[pipe % kKeys], true))
                chest_.startPipe(rank, static_cast<int>(pipe % kKeys), velocity,
                                 state_.gains[stop]);
        }
    };
    for (std::size_t from = 0; from < manuals_.size(); ++from)
        forEachHeldKey(manuals_[from], [&](int key, float velocity) {
            forEachRoute(from, key, [&](std::size_t division, int sounding) {
                for (const std::size_t stop : manuals_[division].stops)
                    if (state_.drawn.stops[stop])
                        start(stop, sounding, velocity);
            });
        });
}

void Console::setGain(std::size_t stop, float gain)
{
    if (stop < state_.gains.size())
        state_.gains[stop] = std::clamp(gain, 0.0F, 1.0F);
}

void Console::openSwell(std::size_t division, float opening)
{
    if (division >= state_.swells.size())
        return;
    state_.swells[division] = std::clamp(opening, 0.0F, 1.0F);
    chest_.openSwell(division, state_.swells[division]);
}

void Console::recall(const Registration& registration)
{
    isTutti_ = false;
    restore(registration);
}

void Console::restore(const Registration& registration)
{
    std::swap(scratch_, state_.drawn);
    for (std::size_t stop = 0; stop < trackers_.size(); ++stop)
        state_.drawn.stops[stop] = isSet(registration.stops, stop);
    for (std::size_t coupler = 0; coupler < definition_.couplers.size(); ++coupler)
        state_.drawn.couplers[coupler] = isSet(registration.couplers, coupler);
    // All of the new registration comes first, so that common pipes do not speak again.
    changeAll(true);
    std::swap(scratch_, state_.drawn);
    changeAll(false);
    std::swap(scratch_, state_.drawn);
}

/// Starts or ends what the held keys play.
void Console::changeAll(bool starts)
{
    for (std::size_t from = 0; from < manuals_.size(); ++from)
        forEachHeldKey(manuals_[from], [&](int key, float velocity) {
            forEachRoute(from, key, [&](std::size_t division, int sounding) {
                change(division, sounding, velocity, starts);
            });
        });
}

void Console::cancel()
{
    recall(none_);
}

void Console::setTutti(bool isTutti)
{
    if (std::exchange(isTutti_, isTutti) == isTutti)
        return;
    if (isTutti)
        beforeTutti_ = state_.drawn;
    restore(isTutti ? all_ : beforeTutti_);
}

void Console::setState(const ConsoleState& state)
{
    recall(state.drawn);
    for (std::size_t stop = 0; stop < state.gains.size(); ++stop)
        setGain(stop, state.gains[stop]);
    for (std::size_t division = 0; division < state.swells.size(); ++division)
        openSwell(division, state.swells[division]);
}

} // namespace velmora
