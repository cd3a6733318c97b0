#include "app/TuningSender.h"

#include "app/Player.h"
#include "app/Tunings.h"

#include <array>
#include <chrono>
#include <cmath>
#include <utility>

namespace velmora {

namespace {

constexpr std::chrono::milliseconds kInterval{50};

/// In semitones: half a step of the messages for the notes of an octave.
constexpr double kSmallestChange = 0.5 / 8192;

constexpr std::size_t kMiddle = 60;

std::array<double, 12> octaveOf(const KeyPlaces& places)
{
    std::array<double, 12> cents{};
    for (std::size_t note = 0; note < cents.size(); ++note)
        cents[note] = 100.0 * (places[kMiddle + note] - static_cast<double>(kMiddle + note));
    return cents;
}

} // namespace

TuningSender::TuningSender(Player& player, Tunings& tunings) : player_(player), tunings_(tunings)
{
    timer_.setInterval(kInterval);
    connect(&timer_, &QTimer::timeout, this, &TuningSender::check);
}

void TuningSender::send(const std::string& output)
{
    if (this->output() != output) {
        timer_.stop();
        output_.reset();
        output_ = std::make_unique<MidiOutput>(output);
        timer_.start();
    }
    sendAll(read());
}

TuningSender::Snapshot TuningSender::read() const
{
    Snapshot snapshot{ReceivedTuning().places, false};
    player_.with([&](const Instrument&, const Temperament& temperament) {
        snapshot.isOctave = temperament.repeatsEveryOctave();
        for (std::size_t key = 0; key < snapshot.places.size(); ++key)
            // An octave higher than usual: see docs/decisions.md, 1.
            if (temperament.isMapped(static_cast<int>(key)))
                snapshot.places[key] = 69.0 + 12.0 * std::log2(temperament.getPitch(key) / 880.0);
    });
    for (const double cents : octaveOf(snapshot.places))
        snapshot.isOctave = snapshot.isOctave && std::abs(cents) <= 100.0;
    return snapshot;
}

void TuningSender::sendAll(const Snapshot& snapshot)
{
    if (snapshot.isOctave)
        output_->send(writeOctaveTuning(octaveOf(snapshot.places)));
    else
        output_->send(writeBulkDump(tunings_.name(), snapshot.places));
    sent_ = snapshot;
}

void TuningSender::sendChanges()
{
    const Snapshot snapshot = read();
    std::vector<std::uint8_t> changed;
    for (std::size_t key = 0; key < snapshot.places.size(); ++key)
        if (std::abs(snapshot.places[key] - sent_.places[key]) > kSmallestChange)
            changed.push_back(static_cast<std::uint8_t>(key));
    if (changed.empty())
        return;
    if (snapshot.isOctave || sent_.isOctave || changed.size() == snapshot.places.size()) {
        sendAll(snapshot);
    } else {
        output_->send(writeKeyChanges(changed, snapshot.places));
        sent_ = snapshot;
    }
}

void TuningSender::check()
{
    std::string error;
    try {
        if (output_->isLost())
            error = "the MIDI output " + output() + " is gone";
        else if (keepsSending_)
            sendChanges();
    } catch (const std::runtime_error& failure) {
        error = failure.what();
    }
    if (error.empty())
        return;
    timer_.stop();
    output_.reset();
    if (std::exchange(keepsSending_, false))
        emit failed(error);
}

} // namespace velmora
