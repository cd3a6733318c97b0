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

/// The colours of the piano roll that can be chosen: in the preferences, or with the theme.
struct RollColors {
    Color note;
    Color playing;
    Color selected; ///< Selected notes and the play position.
    Color interval;

    /// The preferences' and a palette's.
    explicit RollColors(const QPalette& palette);
};

/// One corner of a quad, as OpenGL takes it from an array.
struct RollVertex {
    float x;
    float y;
    std::array<std::uint8_t, 4> color; ///< Red, green, blue and opacity.
};

/// The picture of a piano roll: quads, four vertices each, that are drawn one over the other on
/// white. Only some in the middle are blended by their opacity: drivers without a graphics card
/// draw the others in a fraction of the time.
class RollPicture {
public:
    /// Draws the visible part of a document anew. `line` is the thickness of a line in pixels;
    /// `index` is that of the document's notes.
    void draw(const RollGeometry& geometry, const RollColors& colors, double line,
              const SequenceDocument& document, const RollIndex& index);

    const std::vector<RollVertex>& vertices() const { return vertices_; }

    /// The vertices that are blended: from the first to the one before the last.
    std::size_t blendedBegin() const { return blendedBegin_; }
    std::size_t blendedEnd() const { return blendedEnd_; }

private:
    using Shade = std::array<std::uint8_t, 4>;

    void add(const RollQuad& quad, Shade color) { add(quad, color, color); }
    void add(const RollQuad& quad, Shade bottom, Shade top);
    void addNotes(const RollGeometry& geometry, const RollColors& colors,
                  const SequenceDocument& document, const RollIndex& index);
    void addGrid(const RollGeometry& geometry, double line);

    std::vector<RollVertex> vertices_; ///< Kept between pictures for its memory.
    std::size_t blendedBegin_ = 0, blendedEnd_ = 0;
};

} // namespace velmora
