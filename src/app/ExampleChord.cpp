#include "app/ExampleChord.h"

#include "app/AppDelegate.h"

#include <array>
#include <chrono>

namespace velmora {

namespace {

constexpr std::chrono::seconds kDuration{2};
constexpr float kVelocity = 0.8F;

/// C major with its third a tenth above the bass: the beats of an equal third are easiest to hear
/// there.
constexpr std::array kChord{48, 55, 64, 72};

} // namespace

ExampleChord::ExampleChord(AppDelegate& application) : application_(application)
{
    end_.setSingleShot(true);
    connect(&end_, &QTimer::timeout, this, &ExampleChord::stop);
}

void ExampleChord::play(const std::string& tuning)
{
    if (end_.isActive())
        stop();
    if (!application_.tunings().select(tuning))
        return;
    for (const int key : kChord)
        application_.keyOn(key, kVelocity);
    application_.midiInput();
    end_.start(kDuration);
}

void ExampleChord::stop()
{
    end_.stop();
    for (const int key : kChord)
        application_.keyOff(key);
    application_.midiInput();
}

} // namespace velmora
