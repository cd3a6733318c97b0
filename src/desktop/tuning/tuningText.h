#pragma once

#include <QString>

#include <string>

namespace velmora {

class AppDelegate;
struct HistoricalTemperament;

/// What the user reads about a tuning.
struct TuningText {
    QString title; ///< The description that a scale gives of itself, or the name.
    QString
        detail; ///< A further line: what is special about a built-in tuning, or the file's name.
};

/// Returns the text about the tuning of that name.
TuningText tuningText(const AppDelegate& application, const std::string& name);
TuningText tuningText(const HistoricalTemperament& temperament);

/// Returns the name of the group of a historical temperament in the user's language.
QString groupText(const HistoricalTemperament& temperament);

} // namespace velmora
