#pragma once

#include "desktop/roll/RollGeometry.h"
#include "desktop/roll/RollIndex.h"
#include "preferences/Color.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

class QPalette;

namespace velmora {

class SequenceDocument;

/// The colours of the piano roll that depend on the preferences and the theme.
struct RollColors {
    Color note;
    Color playing;
    Color selected; ///< Selected notes and the play position.
    Color interval;

    /// Takes the note colours from the preferences and the others from `palette`.
    explicit RollColors(const QPalette& palette);
};

/// One corner of a quad, in the layout of an OpenGL vertex array.
struct RollVertex {
    float x;
    float y;
    std::array<std::uint8_t, 4> color; ///< Red, green, blue and opacity.
};

/// The picture of a piano roll: quads of four vertices each, drawn in order on white. Only a range
/// in the middle is blended, because software renderers draw opaque quads many times faster.
class RollPicture {
public:
    /// Replaces the picture with the visible part of a document. `line` is the thickness of a line
    /// in pixels; `index` must be up to date with the document's notes.
    void draw(const RollGeometry& geometry, const RollColors& colors, double line,
              const SequenceDocument& document, const RollIndex& index);

    const std::vector<RollVertex>& vertices() const { return vertices_; }

    /// The vertices to be blended, from the first to one past the last.
    std::size_t blendedBegin() const { return blendedBegin_; }
    std::size_t blendedEnd() const { return blendedEnd_; }

private:
    using Shade = std::array<std::uint8_t, 4>;

    void add(const RollQuad& quad, Shade color) { add(quad, color, color); }
    void add(const RollQuad& quad, Shade bottom, Shade top);
    void addNotes(const RollGeometry& geometry, const RollColors& colors,
                  const SequenceDocument& document, const RollIndex& index);
    void addGrid(const RollGeometry& geometry, double line);

    std::vector<RollVertex> vertices_; ///< Kept between pictures to reuse its memory.
    std::size_t blendedBegin_ = 0, blendedEnd_ = 0;
};

} // namespace velmora
