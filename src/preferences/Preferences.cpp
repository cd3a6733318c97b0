#include "preferences/Preferences.h"

#include <QSettings>
#include <QVariantMap>

namespace {

/// What holds until the user sets something else; never written.
const QVariantMap& defaults()
{
    static const QVariantMap values = {
        {"KeyRangeLo", 21},  // A0
        {"KeyRangeHi", 108}, // C8
        {"GMBank", ""},
    };
    return values;
}

QVariant preference(const std::string& key)
{
    const QSettings settings("velmora", "velmora");
    const QString name = QString::fromStdString(key);
    return settings.value(name, defaults().value(name));
}

} // namespace

int getPrefInt(const std::string& key)
{
    return preference(key).toInt();
}

std::string getPrefString(const std::string& key)
{
    return preference(key).toString().toStdString();
}
