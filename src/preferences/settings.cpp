#include "preferences/settings.h"

#include "base/Log.h"
#include "preferences/Preferences.h"

#include <QSettings>
#include <QVariantMap>

namespace velmora {

namespace {

QVariantList color(double red, double green, double blue)
{
    return {red, green, blue, 1.0};
}

/// The default values, which are never written to disk.
const QVariantMap& defaults()
{
    static const QVariantMap values = {
        {"NoteColor", color(1, 0, 0)},
        {"NoteColorPlaying", color(0, 1, 0)},
        {"KeyColor", color(0, 1, 0)},
        {"KeyColorCorrect", color(1, 0.7, 0)},
        {"KeyColorSustain", color(0.7, 1, 0.5)},
        {"KeyColorWrong", color(1, 0, 0)},
        {"KeyWidth", 14},
        {"KeyHeight", 8},
        {"KeyRangeLo", 21},  // A0
        {"KeyRangeHi", 108}, // C8
        {"KeyNames", true},
        {"SoundNotes", true},
        {"DragSelects", false},
        {"TimeRunsAcross", false},
        {"NoteNames", 0}, // by language
        {"Language", ""},
        {"Scheme", "Calm"},
        {"ReduceMotion", false},
        {"GMBank", ""},
        {"PlainReading", false},
        {"CorrectTuning", true},
        {"StartAsLastTime", true},
        {"VelocityCurve", 0}, // linear
        {"Transposition", 0},
        {"BendRange", 2},
        {"Output", ""},
        {"OutputDevice", ""},
        {"OutputRate", 0},
        {"OutputPeriod", 0},
        {"MasterVolume", 100},
        {"GlideTime", 30},
        {"GlideSounding", true},
        {"CorrectSpelling", true},
        {"CorrectionTime", 40},
        {"Drift", 0}, // tied to A
        {"Metronome", false},
        {"MetronomeUse", 0}, // always
        {"MetronomeDivisions", false},
        {"MetronomeVolume", 70},
        {"CountIn", 0},
        {"PracticeHand", 0},   // both
        {"PracticeSplit", 60}, // C4
        {"PracticeFaster", 5},
        {"PracticeTolerance", 200},
        {"PracticeSlowsDown", false},
        {"PracticeWaits", true},
        {"FallingNotes", false},
    };
    return values;
}

/// Returns the settings. They are opened once, because that takes much longer than reading a value.
QSettings& settings()
{
    static QSettings values("velmora", "velmora");
    return values;
}

void reportDamageOnce()
{
    static bool isReported = false;
    if (isReported || settings().status() == QSettings::NoError)
        return;
    isReported = true;
    logger("preferences")
        .warn("{} {}; using defaults for missing values", settings().fileName().toStdString(),
              settings().status() == QSettings::FormatError ? "is damaged"
                                                            : "cannot be read or written");
}

} // namespace

// See docs/decisions.md, 116.
QVariant preference(const std::string& key)
{
    const QString name = QString::fromStdString(key);
    const QVariant value = settings().value(name);
    reportDamageOnce();
    return value.isValid() ? value : defaults().value(name);
}

QVariant defaultPreference(const std::string& key)
{
    return defaults().value(QString::fromStdString(key));
}

void setPreference(const std::string& key, const QVariant& value)
{
    settings().setValue(QString::fromStdString(key), value);
}

std::filesystem::path settingsFile()
{
    return settings().fileName().toStdString();
}

std::filesystem::path settingsFolder()
{
    return settingsFile().parent_path();
}

bool arePreferencesWritable()
{
    return settings().isWritable();
}

bool isPrefSet(const std::string& key)
{
    return settings().contains(QString::fromStdString(key));
}

void resetPref(const std::string& key)
{
    settings().remove(QString::fromStdString(key));
}

} // namespace velmora
