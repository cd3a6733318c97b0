#pragma once

#include "preferences/Color.h"

#include <QPalette>

#include <initializer_list>

namespace velmora {

/// How the keyboard and the piano roll look, as the preference "Scheme" says: calm colours that
/// suit the theme, or the bright ones on white and black.
enum class Scheme { Calm, Classic };

Scheme preferredScheme();

/// Returns whether a theme is dark.
bool isDark(const QPalette& palette);

/// Returns a colour of the preferences as the views draw it: the user's choice, or else the colour
/// of the scheme in this theme. The keys are those of `Color`.
Color schemeColor(const char* key, const QPalette& palette);

/// Returns the ratio, 1 to 21, of the brightness of two opaque colours, as accessibility guidelines
/// (WCAG 2) define it.
double contrast(const QColor& one, const QColor& other);

/// Returns the selection colour of a theme for what is drawn on some backgrounds. In many dark
/// themes it is hardly brighter than they are; then it takes on as much of the colour of text as
/// makes it differ from each by 3 : 1.
QColor accentOn(std::initializer_list<QColor> backgrounds, const QPalette& palette);

/// Returns black or white, whichever is easier to read on a colour.
QColor inkOn(const QColor& background);

} // namespace velmora
