#pragma once

#include "midi/MidiOutput.h"
#include "midi/tuningMessages.h"

#include <QObject>
#include <QTimer>

#include <memory>
#include <string>

namespace velmora {

class Player;
class Tunings;

/// Sends the current tuning to a MIDI output, so that hardware plays in it. Main thread only.
class TuningSender : public QObject {
    Q_OBJECT

public:
    /// The arguments must outlive the sender.
    TuningSender(Player& player, Tunings& tunings);

    /// Connects an output, unless it is connected already, and sends it the current tuning: the
    /// notes of an octave if that is enough, or else every key. Throws std::runtime_error with a
    /// sentence.
    void send(const std::string& output);

    /// True while everything that changes the tuning, another choice or the music itself, is sent
    /// to the connected output, at most 20 times a second.
    bool keepsSending() const { return keepsSending_; }
    void setKeepsSending(bool keeps) { keepsSending_ = keeps; }

    /// The connected output; empty if there is none.
    std::string output() const { return output_ ? output_->name() : std::string(); }

signals:
    /// The output could not be reached while the sender kept sending, which has ended.
    void failed(const std::string& error);

private:
    /// The pitches of the keys, and what suffices to say them.
    struct Snapshot {
        KeyPlaces places;
        bool isOctave;
    };

    Snapshot read() const;
    void sendAll(const Snapshot& snapshot);
    void sendChanges();
    void check();

    Player& player_;
    Tunings& tunings_;
    std::unique_ptr<MidiOutput> output_;
    bool keepsSending_ = false;
    Snapshot sent_{};
    QTimer timer_; ///< Runs while there is an output.
};

} // namespace velmora
