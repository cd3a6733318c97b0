#include "app/OrganConsole.h"

#include "base/File.h"
#include "base/FormatError.h"
#include "midi/messages.h"
#include "platform/writeFile.h"

#include <algorithm>
#include <filesystem>
#include <utility>

namespace velmora {

OrganConsole::OrganConsole(Player& player, std::function<void()> announce)
    : player_(player), announce_(std::move(announce))
{
}

/// Calls `use(OrganInstrument&)` with the player's lock held if the current instrument is an organ.
template <class Use> bool OrganConsole::withConsole(Use use)
{
    bool isOrgan = false;
    player_.with([&](Instrument& instrument, const Temperament&) {
        auto* organ = dynamic_cast<OrganInstrument*>(&instrument);
        isOrgan = organ != nullptr;
        if (isOrgan)
            use(*organ);
    });
    return isOrgan;
}

/// Changes the console with the player's lock held.
template <class Use> void OrganConsole::move(Use use)
{
    if (withConsole([&](OrganInstrument& organ) { use(organ.console()); }))
        emit moved();
}

void OrganConsole::takeInstrument(Instrument& instrument)
{
    auto* const organ = dynamic_cast<OrganInstrument*>(&instrument);
    if (organ == nullptr && organ_ == nullptr)
        return;
    if (organ != organ_) {
        organ_ = organ;
        readSettings();
    }
    {
        const std::lock_guard lock(mutex_);
        if (std::exchange(routed_, organ) != organ)
            lowestManual_ = keyboardDivision_ = instrument.mainDivision();
    }
    useRegistrations();
    useDivisions();
    emit changed();
}

const ConsoleDefinition* OrganConsole::definition() const
{
    return organ_ != nullptr ? &std::as_const(*organ_).console().definition() : nullptr;
}

ConsoleState OrganConsole::state()
{
    ConsoleState state;
    withConsole([&](const OrganInstrument& organ) { state = organ.console().state(); });
    return state;
}

void OrganConsole::announceMove()
{
    if (organ_ != nullptr)
        emit moved();
}

void OrganConsole::draw(std::size_t stop, bool isDrawn)
{
    move([&](Console& console) { console.draw(stop, isDrawn); });
}

void OrganConsole::drawCoupler(std::size_t coupler, bool isDrawn)
{
    move([&](Console& console) { console.drawCoupler(coupler, isDrawn); });
}

void OrganConsole::setGain(std::size_t stop, float gain)
{
    move([&](Console& console) { console.setGain(stop, gain); });
}

void OrganConsole::openSwell(std::size_t division, float opening)
{
    move([&](Console& console) { console.openSwell(division, opening); });
}

void OrganConsole::cancel()
{
    move([](Console& console) { console.cancel(); });
}

void OrganConsole::setTutti(bool isTutti)
{
    move([&](Console& console) { console.setTutti(isTutti); });
}

bool OrganConsole::isTutti()
{
    bool isTutti = false;
    withConsole([&](const OrganInstrument& organ) { isTutti = organ.console().isTutti(); });
    return isTutti;
}

void OrganConsole::readSettings()
{
    settings_ = {};
    isDamaged_ = false;
    if (organ_ == nullptr)
        return;
    const auto path = organSettingsFile(definition()->identity);
    std::error_code error;
    if (!std::filesystem::exists(path, error))
        return;
    try {
        settings_ = decodeOrganSettings(readTextFile(path), *definition());
    } catch (const FormatError& damage) {
        isDamaged_ = true;
        emit failed(damage.inFile(path.filename().string()));
    }
}

/// Saves the settings, then uses them; they stay as they were if that fails.
void OrganConsole::changeSettings(OrganSettings settings)
{
    const auto path = organSettingsFile(definition()->identity);
    try {
        std::filesystem::create_directories(path.parent_path());
        if (isDamaged_) // it may still be mended by hand
            std::filesystem::rename(path, path.string() + ".damaged");
        isDamaged_ = false;
        writeFile(path, encodeOrganSettings(settings, definition()->identity));
    } catch (const std::exception& error) {
        emit failed(error.what());
        return;
    }
    settings_ = std::move(settings);
    useRegistrations();
}

void OrganConsole::useRegistrations()
{
    std::vector<std::optional<Registration>> registrations(settings_.buttons.begin(),
                                                           settings_.buttons.end());
    for (const OrganSettings::Named& named : settings_.named)
        registrations.emplace_back(named.registration);
    player_.with([&](const Instrument&, const Temperament&) {
        registrations_.swap(registrations);
        recallable_ = organ_;
    });
}

Registration OrganConsole::drawn()
{
    return state().drawn;
}

void OrganConsole::keepUnderButton(std::size_t button)
{
    if (organ_ == nullptr || button >= kRegistrationButtons)
        return;
    OrganSettings settings = settings_;
    settings.buttons[button] = drawn();
    changeSettings(std::move(settings));
    emit registrationsChanged();
}

void OrganConsole::keepUnderName(const std::string& name)
{
    if (organ_ == nullptr)
        return;
    OrganSettings settings = settings_;
    auto named = std::ranges::find(settings.named, name, &OrganSettings::Named::name);
    if (named == settings.named.end())
        named = settings.named.insert(named, {name, {}});
    named->registration = drawn();
    changeSettings(std::move(settings));
    emit registrationsChanged();
}

bool OrganConsole::rename(std::size_t position, const std::string& name)
{
    if (position >= settings_.named.size())
        return true;
    const auto other = std::ranges::find(settings_.named, name, &OrganSettings::Named::name);
    if (other != settings_.named.end())
        return other->name == settings_.named[position].name;
    OrganSettings settings = settings_;
    settings.named[position].name = name;
    changeSettings(std::move(settings));
    emit registrationsChanged();
    return true;
}

void OrganConsole::remove(std::size_t position)
{
    if (position >= settings_.named.size())
        return;
    OrganSettings settings = settings_;
    settings.named.erase(settings.named.begin() + static_cast<std::ptrdiff_t>(position));
    changeSettings(std::move(settings));
    emit registrationsChanged();
}

void OrganConsole::recall(std::size_t number)
{
    withConsole([&](OrganInstrument& organ) {
        if (&organ != recallable_ || number >= registrations_.size() || !registrations_[number])
            return;
        organ.console().recall(*registrations_[number]);
        announce_();
    });
}

bool OrganConsole::receiveProgram(std::uint8_t program)
{
    const bool isOrgan = withConsole([](OrganInstrument&) {});
    recall(program);
    return isOrgan;
}

// See docs/decisions.md, 162.
bool OrganConsole::receiveVolume(std::uint8_t controller, float value, KeySource source)
{
    const std::size_t division = player_.divisions().ofSources[source];
    return withConsole([&](OrganInstrument& organ) {
        if (controller != midi::kExpression)
            return;
        organ.console().openSwell(division, value);
        announce_();
    });
}

DivisionTable OrganConsole::divisions() const
{
    const std::lock_guard lock(mutex_);
    return table_;
}

void OrganConsole::setDivisions(const DivisionTable& table)
{
    if (organ_ == nullptr)
        return;
    OrganSettings settings = settings_;
    settings.divisions = table;
    if (table == defaultDivisions(*definition()))
        settings.divisions.reset();
    changeSettings(std::move(settings));
    useDivisions();
    emit divisionsChanged();
}

void OrganConsole::setKeyboardDivision(std::size_t division)
{
    if (organ_ == nullptr || division >= organ_->numDivisions())
        return;
    {
        const std::lock_guard lock(mutex_);
        keyboardDivision_ = division;
    }
    useDivisions();
    emit divisionsChanged();
}

void OrganConsole::nameDevice(std::size_t number, const std::string& name)
{
    {
        const std::lock_guard lock(mutex_);
        devices_[number] = name;
    }
    routeDevices();
}

void OrganConsole::useDivisions()
{
    {
        const std::lock_guard lock(mutex_);
        table_.clear();
        if (organ_ != nullptr)
            table_ = settings_.divisions.value_or(defaultDivisions(*definition()));
    }
    routeDevices();
}

void OrganConsole::routeDevices()
{
    const std::lock_guard lock(mutex_);
    if (routed_ == nullptr)
        return;
    Player::Divisions divisions;
    const auto route = [&](const std::string& device, std::size_t channel) {
        return static_cast<std::uint8_t>(
            divisionFor(table_, device, static_cast<int>(channel), lowestManual_));
    };
    divisions.ofSources[kMouse] = divisions.ofSources[kLetters] =
        static_cast<std::uint8_t>(keyboardDivision_);
    for (std::size_t channel = 0; channel < midi::kChannels; ++channel) {
        divisions.ofChannels[channel] = route({}, channel);
        for (std::size_t device = 0; device < kMidiDevices; ++device)
            divisions.ofSources[deviceSource(device, channel)] = route(devices_[device], channel);
    }
    player_.setDivisions(*routed_, divisions);
}

} // namespace velmora
