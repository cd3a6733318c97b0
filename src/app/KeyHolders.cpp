#include "app/KeyHolders.h"

#include <algorithm>
#include <utility>

namespace velmora {

namespace {

/// Calls `use(division, key)` for each key that is held.
template <class Use> void forEachKey(const DivisionKeys& keys, Use use)
{
    for (std::size_t division = 0; division < kDivisions; ++division) {
        if (keys[division].none())
            continue;
        for (std::size_t key = 0; key < kKeys; ++key)
            if (keys[division][key])
                use(division, key);
    }
}

} // namespace

void KeyHolders::hold(DivisionKeys& keys, std::size_t division, std::size_t key)
{
    if (!keys[division][key])
        ++held_[division][key];
    keys[division].set(key);
}

void KeyHolders::drop(DivisionKeys& keys, DivisionKeys& free)
{
    forEachKey(keys, [&](std::size_t division, std::size_t key) {
        if (--held_[division][key] == 0)
            free[division].set(key);
    });
    keys = {};
}

void KeyHolders::press(std::size_t division, std::size_t key, KeySource source)
{
    Holder& holder = holders_[source];
    if (source != kSequencer && !holder.pressed[division][key])
        ++pressed_[key];
    hold(holder.pressed, division, key);
}

void KeyHolders::release(std::size_t division, std::size_t key, KeySource source)
{
    Holder& holder = holders_[source];
    if (!holder.pressed[division][key])
        return;
    if (source != kSequencer)
        --pressed_[key];
    if (holder.sustainIsDown)
        hold(holder.sustained, division, key);
    --held_[division][key];
    holder.pressed[division].reset(key);
}

DivisionKeys KeyHolders::setSustain(KeySource source, bool down)
{
    Holder& holder = holders_[source];
    holder.sustainIsDown = down;
    DivisionKeys free;
    if (!down)
        drop(holder.sustained, free);
    return free;
}

DivisionKeys KeyHolders::setSostenuto(KeySource source, bool down)
{
    Holder& holder = holders_[source];
    const bool wasDown = std::exchange(holder.sostenutoIsDown, down);
    DivisionKeys free;
    if (!down)
        drop(holder.sostenuto, free);
    else if (!wasDown)
        forEachKey(holder.pressed, [&](std::size_t division, std::size_t key) {
            hold(holder.sostenuto, division, key);
        });
    return free;
}

DivisionKeys KeyHolders::releaseAll(KeySource source)
{
    Holder& holder = holders_[source];
    if (source != kSequencer)
        forEachKey(holder.pressed, [&](std::size_t, std::size_t key) { --pressed_[key]; });
    holder.sustainIsDown = holder.sostenutoIsDown = false;
    DivisionKeys free;
    for (DivisionKeys* keys : {&holder.pressed, &holder.sustained, &holder.sostenuto})
        drop(*keys, free);
    return free;
}

bool KeyHolders::isHeld(std::size_t key) const
{
    return std::ranges::any_of(held_, [key](const auto& keys) { return keys[key] > 0; });
}

void KeyHolders::clear()
{
    for (Holder& holder : holders_)
        holder = {{}, {}, {}, holder.sustainIsDown, holder.sostenutoIsDown};
    held_ = {};
    pressed_.fill(0);
}

} // namespace velmora
