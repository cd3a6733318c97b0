#include "preferences/Preferences.h"

#include "base/Log.h"
#include "preferences/settings.h"

#include <algorithm>
#include <limits>
#include <set>

namespace velmora {

namespace {

/// Logs that a key's stored value is unusable, once per key.
void reportOnce(const std::string& key, const char* expected)
{
    static std::set<std::string> reported;
    if (reported.insert(key).second)
        logger("preferences").warn("the preference {} is not {}; using its default", key, expected);
}

} // namespace

PrefRange prefRange(const std::string& key)
{
    if (key == "KeyWidth")
        return {4, 64};
    if (key == "KeyHeight")
        return {1, 64};
    if (key == "KeyRangeLo")
        return {0, 126};
    if (key == "KeyRangeHi")
        return {getPrefInt("KeyRangeLo") + 1, 127};
    if (key == "VelocityCurve" || key == "NoteNames")
        return {0, 3};
    if (key == "Transposition")
        return {-24, 24};
    if (key == "BendRange")
        return {0, 12};
    if (key == "OutputRate")
        return {0, 192'000};
    if (key == "OutputPeriod")
        return {0, 8192};
    if (key == "GlideTime")
        return {0, 500};
    if (key == "CorrectionTime")
        return {1, 200};
    if (key == "PracticeSplit")
        return {0, 127};
    if (key == "PracticeFaster")
        return {0, 20};
    if (key == "PracticeTolerance")
        return {50, 1000};
    if (key == "Drift" || key == "MetronomeUse" || key == "CountIn" || key == "PracticeHand")
        return {0, 2};
    if (key == "MasterVolume" || key == "MetronomeVolume")
        return {0, 100};
    return {std::numeric_limits<int>::min(), std::numeric_limits<int>::max()};
}

int getPrefInt(const std::string& key)
{
    bool isNumber = false;
    int value = preference(key).toInt(&isNumber);
    const QVariant defaultValue = defaultPreference(key);
    if (!isNumber && defaultValue.isValid()) {
        reportOnce(key, "a whole number");
        value = defaultValue.toInt();
    }
    const PrefRange range = prefRange(key);
    return std::clamp(value, range.least, range.greatest);
}

void setPrefInt(const std::string& key, int value)
{
    setPreference(key, value);
}

bool getPrefBool(const std::string& key)
{
    const QString text = preference(key).toString();
    if (text == "true" || text == "false")
        return text == "true";
    reportOnce(key, "true or false");
    return defaultPreference(key).toBool();
}

void setPrefBool(const std::string& key, bool value)
{
    setPreference(key, value);
}

std::string getPrefString(const std::string& key)
{
    return preference(key).toString().toStdString();
}

void setPrefString(const std::string& key, const std::string& value)
{
    setPreference(key, QString::fromStdString(value));
}

} // namespace velmora
