#pragma once

#include <QColor>

#include <string>

namespace velmora {

/// A colour to draw with: red, green, blue and opacity, each from 0 to 1.
struct Color {
    float red = 0;
    float green = 0;
    float blue = 0;
    float alpha = 0;

    explicit Color(const QColor& color);

    /// Reads a preference: "NoteColor" or "NoteColorPlaying" of the piano roll; "KeyColor",
    /// "KeyColorCorrect", "KeyColorSustain" or "KeyColorWrong" of the keyboard. All components are
    /// 0 if the key is unknown or its value is unreadable.
    explicit Color(const char* key);

    QColor toQColor() const { return QColor::fromRgbF(red, green, blue, alpha); }

    bool operator==(const Color&) const = default;
};

/// Sets a colour preference. It is stored as four numbers.
void setPrefColor(const std::string& key, const Color& color);

} // namespace velmora
