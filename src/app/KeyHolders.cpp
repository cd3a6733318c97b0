#include "app/KeyHolders.h"

#include <utility>

namespace velmora {

void KeyHolders::hold(KeySet& keys, std::size_t key)
{
    if (!keys[key])
        ++held_[key];
    keys.set(key);
}

KeySet KeyHolders::drop(KeySet& keys)
{
    KeySet free;
    for (std::size_t key = 0; key < kKeys && keys.any(); ++key) {
        if (keys[key])
            free[key] = --held_[key] == 0;
        keys.reset(key);
    }
    return free;
}

void KeyHolders::press(std::size_t key, KeySource source)
{
    Holder& holder = holders_[source];
    if (source != kSequencer && !holder.pressed[key])
        ++pressed_[key];
    hold(holder.pressed, key);
}

void KeyHolders::release(std::size_t key, KeySource source)
{
    Holder& holder = holders_[source];
    if (!holder.pressed[key])
        return;
    if (source != kSequencer)
        --pressed_[key];
    if (holder.sustainIsDown)
        hold(holder.sustained, key);
    --held_[key];
    holder.pressed.reset(key);
}

KeySet KeyHolders::setSustain(KeySource source, bool down)
{
    Holder& holder = holders_[source];
    holder.sustainIsDown = down;
    return down ? KeySet() : drop(holder.sustained);
}

KeySet KeyHolders::setSostenuto(KeySource source, bool down)
{
    Holder& holder = holders_[source];
    const bool wasDown = std::exchange(holder.sostenutoIsDown, down);
    if (!down)
        return drop(holder.sostenuto);
    for (std::size_t key = 0; key < kKeys && !wasDown; ++key)
        if (holder.pressed[key])
            hold(holder.sostenuto, key);
    return {};
}

KeySet KeyHolders::releaseAll(KeySource source)
{
    Holder& holder = holders_[source];
    for (std::size_t key = 0; key < kKeys && source != kSequencer; ++key)
        if (holder.pressed[key])
            --pressed_[key];
    holder.sustainIsDown = holder.sostenutoIsDown = false;
    return drop(holder.pressed) | drop(holder.sustained) | drop(holder.sostenuto);
}

void KeyHolders::clear()
{
    for (Holder& holder : holders_)
        holder = {{}, {}, {}, holder.sustainIsDown, holder.sostenutoIsDown};
    held_.fill(0);
    pressed_.fill(0);
}

} // namespace velmora
