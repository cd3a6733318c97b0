#pragma once

#include "audio/AudioSource.h"
#include "audio/DueEvents.h"
#include "audio/MusicDevice.h"
#include "audio/Reverb.h"
#include "audio/SynthesizerLane.h"
#include "base/LockFreeQueue.h"

#include <array>
#include <atomic>
#include <bitset>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <vector>

namespace velmora {

/// The General MIDI synthesizer, with reverberation. Messages may be sent from one thread at a time
/// while another thread renders; neither waits for the other. Without a SoundFont it is silent.
///
/// FluidSynth starts notes only every 64 frames. Each channel with notes has a lane of its own, and
/// further lanes are lent to whatever channel needs one: as long as an idle lane is left, each note
/// starts on one, exactly at its frame. Keys with pitches of their own are played like one more
/// channel, of which each lane has another pitch.
class Synthesizer : public MusicDevice, public AudioSource {
public:
    /// Loads the first of `banks` that can be loaded; logs those that cannot. `rate` is in hertz.
    /// Throws std::runtime_error if it is below 8000.
    Synthesizer(double rate, const std::vector<std::filesystem::path>& banks);

    /// The SoundFont in use; empty if there is none.
    std::filesystem::path bank() const { return bank_ ? bank_->path() : std::filesystem::path(); }

    /// The programs of that bank.
    std::vector<Program> programs() const;

    /// Plays note-ons, note-offs, controllers, program changes and pitch bends (±200 cents for
    /// ±8192) on the channels 0…12, when they are due. Channel 9 is for percussion: its notes can
    /// cut each other off, as those of a hi-hat do.
    void midiEvent(int status, int data1, int data2) override;

    bool tunesKeys() const override { return true; }
    void keyOn(int key, int velocity, int sounding, double cents) override;
    void keyOff(int key) override;
    void tuneKey(int key, double cents) override;
    void setDue(double time) override { due_ = time; }
    void setPart(std::size_t part) override { part_ = static_cast<std::uint8_t>(part); }
    void controlPart(int number, int value) override;
    void bend(double cents) override;
    void setGlide(const Glide& glide) override { glide_ = glide; }
    void setCorrections(const KeyCorrections& corrections) override
    {
        corrections_.at(part_) = corrections;
    }
    AudioSource* source() override { return this; }
    std::size_t voices() const override { return voices_; }

    /// Ends every note and renders at another rate from now on; takes about 0.1 s. Keeps the
    /// programs, controllers and bends. The pitch is wrong below 8000 Hz.
    void setRate(double rate) override;

    void render(float* left, float* right, std::size_t frames, double start) override;

private:
    struct Event {
        double due;
        int status; ///< Of a message, or one of the kinds below.
        int data1, data2;
        double cents = 0.0;      ///< Of a bend or a key.
        double correction = 0.0; ///< Of a note.
        int sounding = 0;        ///< The key of the bank that a key plays.
        std::size_t frame = 0;   ///< Its place in the block, once that is known.
        Glide glide{};           ///< Of a bend or a key that moves.
        std::uint8_t part = 0;   ///< Of a note, a program or a controller.
    };

    // Kinds of events that are no messages.
    static constexpr int kWheel = 0; ///< Bends all channels.
    static constexpr int kKeyOn = 1, kKeyOff = 2, kTuneKey = 3;
    static constexpr int kControlPart = 4;

    /// The note that a key started last.
    struct KeyNote {
        std::size_t lane = 0;
        unsigned turn = 0; ///< Of the lane; it plays something else if it is at another.
        int sounding = 0;  ///< The key of the bank.
        double cents = 0.0;
        double raised = 0.0; ///< By so many whole cents above the lane.
    };

    static std::optional<std::size_t> ownLaneOf(std::size_t channel);

    static constexpr std::size_t kKeys = 128;

    /// The channels, the wheel, the keys and the controllers of parts.
    static constexpr std::size_t kWheelOrder = 16;
    static constexpr std::size_t kControlOrder = kWheelOrder + 1 + kKeys;
    static constexpr std::size_t kOrders = kControlOrder + 1;

    /// A busy block has dozens of messages; the rest is for a renderer that has stalled.
    static constexpr std::size_t kQueue = 1 << 14;

    /// One for each channel with notes, and one for the keys with pitches of their own; these come
    /// first.
    static constexpr std::size_t kOwnLanes = 14;
    static constexpr std::size_t kPercussionLane = 12;
    static constexpr std::size_t kKeyLane = 13;
    static constexpr std::size_t kLanes = kOwnLanes + 24;

    static std::size_t orderOf(const Event& event);
    void send(const Event& event);
    void receive();
    void apply(const Event& event);
    void noteOn(std::size_t own, const Event& event);
    void control(std::size_t own, const Event& event);
    void startKey(const Event& event);
    void stopKey(PartKey key);
    void retuneKey(PartKey key, double cents, const Glide& glide);
    bool isOn(const KeyNote& note, std::size_t lane) const;
    void raise(KeyNote& note, std::size_t part);
    std::optional<std::size_t> idleLaneFor(std::size_t own);
    std::size_t nearestLane(PartKey sounding, double cents) const;
    KeyNote& noteOf(PartKey key)
    {
        return notes_.at(key.part).at(static_cast<std::size_t>(key.key));
    }
    void noteStarted(PartKey key, const KeyNote& note, bool isFirst);
    void applyBends(std::size_t own, const Glide& glide);
    void applyWheel();
    void applyToKeys(const Event& event);
    void silence(std::size_t own);
    void silenceAfterOverflow();

    template <class Action> void forLanes(std::size_t own, const Action& action)
    {
        for (std::size_t i = 0; i < lanes_.size(); ++i) {
            if (ownLanes_[i] == own)
                action(*lanes_[i]);
        }
    }

    double rate_;
    std::optional<SoundFontBank> bank_; ///< The lanes borrow it.
    std::vector<std::unique_ptr<SynthesizerLane>> lanes_;
    std::array<std::size_t, kLanes> ownLanes_{}; ///< Whose channel each lane plays.
    std::array<double, kOwnLanes> bends_{};      ///< Cents, of each channel.
    std::array<double, kLanes> laneCents_{};     ///< Of each lane, without the wheel.
    std::array<PartKey, kLanes> firstKeys_{};    ///< The key whose pitch each lane has.
    /// How many times a note has started on each lane while it was idle, and one more.
    std::array<unsigned, kLanes> turns_{};
    std::array<std::array<KeyNote, kKeys>, kParts> notes_{}; ///< Of each key of each part.
    std::bitset<kParts> played_;                             ///< The parts that have started notes.
    double wheel_ = 0.0;                                     ///< Cents, of all channels.
    std::optional<Reverb> reverb_;

    double due_ = 0.0;                                 ///< Of the next messages.
    std::uint8_t part_ = 0;                            ///< Of the next messages.
    std::array<KeyCorrections, kParts> corrections_{}; ///< Of the next notes.
    Glide glide_;                                      ///< Of the next bends.
    /// The last bend, in cents, of each channel and of the wheel.
    std::array<std::atomic<double>, kWheelOrder + 1> sentBends_{};
    LockFreeQueue<Event> queue_{kQueue};
    DueEvents<Event> pending_{kQueue};
    std::array<double, kOrders> dues_{}; ///< When the last message of each channel is due.
    std::atomic<bool> overflowed_{false};
    std::atomic<std::size_t> voices_{0};
};

} // namespace velmora
