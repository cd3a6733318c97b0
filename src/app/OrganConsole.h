#pragma once

#include "app/KeyHolders.h"
#include "app/OrganSettings.h"
#include "app/Player.h"
#include "sound/OrganInstrument.h"

#include <QObject>

#include <array>
#include <cstdint>
#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace velmora {

/// The console of the current instrument if it is an organ, as the desktop and the MIDI devices see
/// it, with the registrations and the table of divisions that the user keeps for that organ. Stops,
/// couplers and divisions are numbered as in its definition. Main thread only, except where it says
/// otherwise.
class OrganConsole : public QObject {
    Q_OBJECT

public:
    /// `announce` must call `announceMove` soon on the main thread. It is called on any thread,
    /// with the player's lock held.
    OrganConsole(Player& player, std::function<void()> announce);

    /// Emits `moved` if the current instrument is an organ.
    void announceMove();

    /// Looks at the current instrument again, and reads what the user keeps for it.
    void takeInstrument(Instrument& instrument);

    /// The console of the current organ, until `changed`; null if the instrument has none.
    const ConsoleDefinition* definition() const;

    /// What is drawn, the gains and the swells; empty without a console.
    ConsoleState state();

    void draw(std::size_t stop, bool isDrawn);
    void drawCoupler(std::size_t coupler, bool isDrawn);

    /// Sets the gain of a stop, 0…1, without drawing it.
    void setGain(std::size_t stop, float gain);

    /// Opens the swell of a division, from 0 for closed to 1 for open.
    void openSwell(std::size_t division, float opening);

    /// Pushes in every stop and coupler.
    void cancel();

    /// Draws everything at unison pitch, or returns to what was drawn before.
    void setTutti(bool isTutti);
    bool isTutti();

    /// The buttons and the named registrations of the current organ.
    const OrganSettings& settings() const { return settings_; }

    /// Keeps what is drawn under a button, numbered from 0, or under a name, which replaces a
    /// registration of that name.
    void keepUnderButton(std::size_t button);
    void keepUnderName(const std::string& name);

    /// Recalls a registration: those of the buttons are numbered from 0, those with names follow.
    /// Does nothing if there is none. Any thread may call it.
    void recall(std::size_t number);

    /// Renames or removes a named registration by its position in the list. Renaming returns
    /// false if another one has that name.
    bool rename(std::size_t position, const std::string& name);
    void remove(std::size_t position);

    /// The table that decides which division a MIDI channel or device plays.
    DivisionTable divisions() const;
    void setDivisions(const DivisionTable& table);

    /// The division that the on-screen keyboard and the letters play.
    std::size_t keyboardDivision() const { return keyboardDivision_; }
    void setKeyboardDivision(std::size_t division);

    /// Tells the name of the MIDI device of that number. Any thread may call it.
    void nameDevice(std::size_t number, const std::string& name);

    /// A volume controller of a source was moved to a value from 0 to 1: expression opens the swell
    /// of the source's division, others do nothing. Returns false without a console. Any thread may
    /// call it.
    bool receiveVolume(std::uint8_t controller, float value, KeySource source);

    /// Recalls a registration by a received program change. Returns false without a console. Any
    /// thread may call it.
    bool receiveProgram(std::uint8_t program);

signals:
    /// Another console, or none, takes the place of the last one.
    void changed();

    /// A stop, coupler, gain or swell has moved; also after a MIDI device has moved it.
    void moved();

    /// A registration was kept, renamed or removed.
    void registrationsChanged();

    /// The table of divisions or the division of the on-screen keyboard has changed.
    void divisionsChanged();

    /// What the user keeps for the organ cannot be read or saved; `sentence` says why.
    void failed(const std::string& sentence);

private:
    template <class Use> bool withConsole(Use use);
    template <class Use> void move(Use use);
    void readSettings();
    void changeSettings(OrganSettings settings);
    Registration drawn();
    void useRegistrations();
    void useDivisions();
    void routeDevices();

    Player& player_;
    std::function<void()> announce_;
    OrganInstrument* organ_ = nullptr;
    OrganSettings settings_;
    bool isDamaged_ = false; ///< The file of the settings cannot be understood.

    // Guarded by the player's lock:
    const OrganInstrument* recallable_ = nullptr; ///< Whose registrations the next member holds.
    std::vector<std::optional<Registration>> registrations_;

    mutable std::mutex mutex_; ///< Guards the members below; taken before the player's lock.
    const Instrument* routed_ = nullptr; ///< The current instrument if it is an organ.
    DivisionTable table_;
    std::size_t lowestManual_ = 0, keyboardDivision_ = 0;
    std::array<std::string, kMidiDevices> devices_; ///< Their names by number.
};

} // namespace velmora
