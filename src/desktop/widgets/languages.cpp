#include "desktop/widgets/languages.h"

#include "base/Log.h"
#include "preferences/Preferences.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace velmora {

namespace {

constexpr const char* kTranslations = ":/i18n";
constexpr const char* kPrefix = "velmora_";

/// Loads a translation into the application. Returns false if there is none.
bool installTranslator(const QLocale& locale, const QString& prefix, const QString& folder)
{
    auto* translator = new QTranslator(QCoreApplication::instance());
    if (!translator->load(locale, prefix, {}, folder)) {
        delete translator;
        return false;
    }
    return QCoreApplication::installTranslator(translator);
}

} // namespace

QStringList languages()
{
    QStringList codes;
    for (const QString& file : QDir(kTranslations).entryList({QString(kPrefix) + "*.qm"}))
        codes += file.section('_', 1).section('.', 0, 0);
    return codes;
}

QString nativeName(const QString& language)
{
    const QLocale locale(QLocale(language).language(), QLocale::World);
    const QString name = locale.nativeLanguageName().section(' ', 0, 0); // without the country
    return locale.toUpper(name.left(1)) + name.mid(1);
}

void installTranslators()
{
    const QString chosen = QString::fromStdString(getPrefString("Language"));
    const QLocale locale = languages().contains(chosen) ? QLocale(chosen) : QLocale::system();
    QLocale::setDefault(locale);
    if (!installTranslator(locale, kPrefix, kTranslations))
        installTranslator(QLocale::English, kPrefix, kTranslations); // which has the plurals
    else if (!installTranslator(locale, "qtbase_",
                                QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        logger("desktop").debug("Qt has no translations for {}", locale.name().toStdString());
}

} // namespace velmora
