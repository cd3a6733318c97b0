#pragma once

#include <QVariant>

#include <string>

namespace velmora {

/// Returns the stored value of a key, or else its default. Invalid if there is neither. Windows
/// also store their geometry here.
QVariant preference(const std::string& key);

/// Returns the default value of a key; invalid if there is none.
QVariant defaultPreference(const std::string& key);

void setPreference(const std::string& key, const QVariant& value);

/// Returns whether changed preferences can be saved.
bool arePreferencesWritable();

} // namespace velmora
