#pragma once

#include <QString>
#include <QStringList>

namespace velmora {

/// Returns the codes of the languages of the user interface, such as "de".
QStringList languages();

/// Returns the name of a language in that language.
QString nativeName(const QString& language);

/// Translates all texts from now on, and makes numbers follow the same language: the one of the
/// preference "Language" or, if that is empty or unknown, the first language of the desktop that is
/// known. Must be called with an application, before the first window.
void installTranslators();

} // namespace velmora
