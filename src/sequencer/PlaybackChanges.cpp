// How playback changes the programs of voices and moves their controllers.

#include "sequencer/SequencePlayback.h"

#include <algorithm>

namespace velmora {

std::span<const ProgramChange> SequencePlayback::programsBetween(double from, double to) const
{
    const auto first = std::ranges::lower_bound(programs_, from, {}, &ProgramChange::step);
    const auto last =
        std::lower_bound(first, programs_.end(), to, [](const ProgramChange& change, double step) {
            return change.step < step;
        });
    return {first, last};
}

void SequencePlayback::usePrograms(double step)
{
    for (const ProgramChange& change : programsAt(programs_, step))
        host_.setProgram(change.channel, change.preset, 0.0);
}

std::span<const ControllerEvent> SequencePlayback::controllersBetween(double from, double to) const
{
    if (controllers_ == nullptr)
        return {};
    const auto first = std::ranges::lower_bound(*controllers_, from, {}, &ControllerEvent::step);
    const auto last =
        std::ranges::lower_bound(first, controllers_->end(), to, {}, &ControllerEvent::step);
    return {first, last};
}

void SequencePlayback::moveControllers(std::span<const ControllerEvent> events)
{
    for (const ControllerEvent& event : events) {
        moved_.at(event.channel).set(event.number);
        host_.control(event.number, event.value, event.channel, 0.0);
    }
}

void SequencePlayback::startControllers(double step)
{
    const Controllers values =
        controllers_ == nullptr ? Controllers() : valuesBefore(*controllers_, step);
    for (const ControllerEvent& event : values)
        moved_.at(event.channel).reset(event.number);
    letControllersGo(); // those that the piece no longer moves
    moveControllers(values);
}

void SequencePlayback::letControllersGo()
{
    for (std::size_t channel = 0; channel < moved_.size(); ++channel)
        for (int number = 0; number < kControllerNumbers && moved_[channel].any(); ++number)
            if (moved_[channel][static_cast<std::size_t>(number)]) {
                moved_[channel].reset(static_cast<std::size_t>(number));
                host_.control(number, restingValue(number), static_cast<int>(channel), 0.0);
            }
}

} // namespace velmora
