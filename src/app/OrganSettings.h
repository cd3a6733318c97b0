#pragma once

#include "app/DivisionTable.h"
#include "sound/ConsoleState.h"

#include <array>
#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

/// How many registrations have a button.
constexpr std::size_t kRegistrationButtons = 10;

/// What the user keeps for one organ: registrations, and which division each device plays.
struct OrganSettings {
    struct Named {
        std::string name;
        Registration registration;

        bool operator==(const Named&) const = default;
    };

    std::array<std::optional<Registration>, kRegistrationButtons> buttons;
    std::vector<Named> named;
    std::optional<DivisionTable> divisions; ///< Empty while the default holds.

    bool operator==(const OrganSettings&) const = default;
};

/// Returns the file with the settings of the organ of that identity, in the folder of the
/// preferences.
std::filesystem::path organSettingsFile(const std::string& identity);

/// Returns the settings as the text of their file, which is JSON.
std::string encodeOrganSettings(const OrganSettings& settings, const std::string& identity);

/// Returns the settings in the text of a file, as far as they fit the organ. Throws FormatError if
/// the text is not such a file.
OrganSettings decodeOrganSettings(std::string_view text, const ConsoleDefinition& definition);

} // namespace velmora
