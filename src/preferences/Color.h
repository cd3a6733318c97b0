#pragma once

#include <QColor>

#include <string>

namespace velmora {

/// A colour as it is drawn: red, green, blue and opacity, each from 0 to 1.
struct Color {
    float red = 0;
    float green = 0;
    float blue = 0;
    float alpha = 0;

    explicit Color(const QColor& color);

    /// The colour that the user has set for a key, or its default: "NoteColor" and
    /// "NoteColorPlaying" of the piano roll; "KeyColor", "KeyColorCorrect", "KeyColorSustain" and
    /// "KeyColorWrong" of the keyboard. All 0 when there is none or it cannot be read.
    explicit Color(const char* key);

    QColor toQColor() const { return QColor::fromRgbF(red, green, blue, alpha); }

    bool operator==(const Color&) const = default;
};

/// Stored as four numbers.
void setPrefColor(const std::string& key, const Color& color);

} // namespace velmora
