#pragma once

#include <QVariant>

#include <string>

namespace velmora {

/// What is kept for a key: what the user has set, or its default, or what the windows remember from
/// run to run. Invalid where there is neither.
QVariant preference(const std::string& key);

/// What holds for a key until the user sets something else.
QVariant defaultPreference(const std::string& key);

void setPreference(const std::string& key, const QVariant& value);

/// Whether what is set outlives the program.
bool arePreferencesWritable();

} // namespace velmora
