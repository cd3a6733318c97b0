#pragma once

#include <QVariant>

#include <string>

/// What the user has set for a key, or its default. Invalid for a key that is not known.
QVariant preference(const std::string& key);

/// What holds for a key until the user sets something else.
QVariant defaultPreference(const std::string& key);

void setPreference(const std::string& key, const QVariant& value);
