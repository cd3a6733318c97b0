#pragma once

#include <QVariant>

#include <filesystem>
#include <string>

namespace velmora {

/// Returns the stored value of a key or, if there is none, its default; an invalid value if it has
/// neither. Windows also store their geometry here.
QVariant preference(const std::string& key);

/// Returns the default value of a key, or an invalid value if it has none.
QVariant defaultPreference(const std::string& key);

void setPreference(const std::string& key, const QVariant& value);

/// Returns the path of the file in which the preferences are stored.
std::filesystem::path settingsFile();

/// Returns its folder, in which other settings of the user can be stored too.
std::filesystem::path settingsFolder();

/// Returns whether changed preferences can be saved.
bool arePreferencesWritable();

} // namespace velmora
