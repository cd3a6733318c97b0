#include "app/OrganSettings.h"

#include "app/JsonField.h"
#include "app/KeyHolders.h"
#include "base/FormatError.h"
#include "preferences/settings.h"

#include <QByteArray>
#include <QCryptographicHash>

#include <algorithm>

namespace velmora {

namespace {

constexpr int kOrganSettingsVersion = 1;

Json describe(const Registration& registration)
{
    return {{"stops", describePositions(registration.stops)},
            {"couplers", describePositions(registration.couplers)}};
}

/// Reads what is drawn of `count` knobs; what the file says about others is ignored.
std::vector<bool> readDrawn(const std::optional<JsonField>& field, std::size_t count)
{
    std::vector<bool> drawn;
    if (field)
        drawn = readPositions(*field);
    drawn.resize(count);
    return drawn;
}

Registration readRegistration(const JsonField& field, const ConsoleDefinition& definition)
{
    if (!field.value.is_object())
        field.refuse("a record in braces");
    return {readDrawn(field.find("stops"), definition.stops.size()),
            readDrawn(field.find("couplers"), definition.couplers.size())};
}

DivisionRoute readRoute(const JsonField& field, const ConsoleDefinition& definition)
{
    DivisionRoute route;
    if (const auto device = field.find("device"))
        route.device = device->text();
    if (const auto channel = field.find("channel"))
        route.channel = channel->integer(1, midi::kChannels) - 1;
    if (const auto division = field.find("division"))
        route.division = division->index(std::min(definition.divisions.size(), kDivisions));
    return route;
}

Json describe(const DivisionRoute& route)
{
    Json field = Json::object();
    if (!route.device.empty())
        field["device"] = route.device;
    if (route.channel != kEveryChannel)
        field["channel"] = route.channel + 1;
    field["division"] = route.division;
    return field;
}

} // namespace

std::filesystem::path organSettingsFile(const std::string& identity)
{
    const QByteArray hash =
        QCryptographicHash::hash(QByteArray::fromStdString(identity), QCryptographicHash::Sha1);
    return settingsFolder() / "organs" / (hash.toHex().toStdString() + ".json");
}

std::string encodeOrganSettings(const OrganSettings& settings, const std::string& identity)
{
    Json file = Json::object();
    file["velmoraOrgan"] = kOrganSettingsVersion;
    file["organ"] = identity;
    file["buttons"] = Json::array();
    for (const auto& registration : settings.buttons)
        file["buttons"].push_back(registration ? describe(*registration) : Json());
    file["named"] = Json::array();
    for (const OrganSettings::Named& named : settings.named) {
        Json& entry = file["named"].emplace_back(describe(named.registration));
        entry["name"] = named.name;
    }
    if (settings.divisions) {
        file["divisions"] = Json::array();
        for (const DivisionRoute& route : *settings.divisions)
            file["divisions"].push_back(describe(route));
    }
    return file.dump(2, ' ', false, Json::error_handler_t::replace) + '\n';
}

OrganSettings decodeOrganSettings(std::string_view text, const ConsoleDefinition& definition)
{
    const Json json = parseJson(text);
    const JsonField file{json, {}};
    const auto version = json.is_object() ? file.find("velmoraOrgan") : std::nullopt;
    if (!version || version->value != kOrganSettingsVersion)
        throw FormatError("these are not the registrations of an organ");
    OrganSettings settings;
    if (const auto buttons = file.find("buttons")) {
        const auto fields = buttons->elements();
        for (std::size_t i = 0; i < std::min(fields.size(), settings.buttons.size()); ++i)
            if (!fields[i].value.is_null())
                settings.buttons[i] = readRegistration(fields[i], definition);
    }
    if (const auto named = file.find("named"))
        for (const JsonField& field : named->records()) {
            const auto name = field.find("name");
            settings.named.push_back(
                {name ? name->text() : std::string(), readRegistration(field, definition)});
        }
    if (const auto divisions = file.find("divisions")) {
        settings.divisions.emplace();
        for (const JsonField& field : divisions->records())
            settings.divisions->push_back(readRoute(field, definition));
    }
    return settings;
}

} // namespace velmora
