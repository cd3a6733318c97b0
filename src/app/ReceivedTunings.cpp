#include "app/ReceivedTunings.h"

#include "app/Tunings.h"
#include "base/Log.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace velmora {

namespace {

/// A device can send hundreds of changes a second, and each makes windows draw.
constexpr int kPauseMilliseconds = 20;

KeyPitches hertzOf(const KeyPlaces& places)
{
    KeyPitches hertz{};
    std::ranges::transform(places, hertz.begin(),
                           [](double place) { return 440.0 * std::exp2((place - 69.0) / 12.0); });
    return hertz;
}

} // namespace

ReceivedTunings::ReceivedTunings(Tunings& tunings, std::function<void()> wake,
                                 std::function<std::string(std::size_t)> nameOf)
    : tunings_(tunings), wake_(std::move(wake)), nameOf_(std::move(nameOf))
{
    pause_.setSingleShot(true);
    pause_.setInterval(kPauseMilliseconds);
    QObject::connect(&pause_, &QTimer::timeout, [this] { play(); });
}

void ReceivedTunings::receive(std::size_t device, MidiPacket message)
{
    if (!isTuningMessage(message) || message.size() > kLongestTuningMessage)
        return;
    Message waiting{.device = device, .size = message.size(), .bytes = {}};
    std::ranges::copy(message, waiting.bytes.begin());
    if (messages_.push(waiting))
        wake_();
}

void ReceivedTunings::take()
{
    while (const Message* message = messages_.front()) {
        read(*message);
        messages_.pop();
    }
    if (!pause_.isActive())
        play();
}

void ReceivedTunings::read(const Message& message)
{
    if (readTuningMessage(MidiPacket(message.bytes).first(message.size), received_[message.device]))
        changed_ = message.device;
    else
        logger("app").warn("a tuning that {} has sent is damaged and was ignored",
                           nameOf_(message.device));
}

void ReceivedTunings::play()
{
    const auto device = std::exchange(changed_, std::nullopt);
    if (!device)
        return;
    pause_.start();
    const std::string title = titleOf(*device);
    titles_[title] = *device;
    tunings_.replace(TuningDocument::makeReceived(title, hertzOf(received_[*device].places)));
    if (tunings_.name() != title)
        tunings_.select(title);
}

/// A tuning never takes the place of one that came from elsewhere, but it may take that of one that
/// was received before the program was started.
std::string ReceivedTunings::titleOf(std::size_t device) const
{
    const std::string name = nameOf_(device);
    const std::string& own = received_.at(device).name;
    std::string title = own.empty() ? name : own;
    const auto isTaken = [&](const std::string& wanted) {
        const auto played = titles_.find(wanted);
        if (played != titles_.end())
            return played->second != device;
        return TuningDocument::isBuiltin(wanted) ||
               std::ranges::any_of(tunings_.documents(), [&](const auto& document) {
                   return document->name() == wanted && !document->received();
               });
    };
    while (isTaken(title))
        title += " (" + name + ")";
    return title;
}

} // namespace velmora
