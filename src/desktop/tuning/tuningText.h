#pragma once

#include <QString>

#include <string>

namespace velmora {

class AppDelegate;

/// What the user reads about a tuning.
struct TuningText {
    QString title; ///< The description that a scale gives of itself, or the name.
    QString
        detail; ///< A further line: what is special about a built-in tuning, or the file's name.
};

/// Returns the text about the tuning of that name.
TuningText tuningText(const AppDelegate& application, const std::string& name);

} // namespace velmora
