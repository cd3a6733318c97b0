#pragma once

#include "desktop/roll/RollColors.h"
#include "desktop/roll/RollGeometry.h"
#include "desktop/roll/RollIndex.h"

#include <cstddef>
#include <vector>

namespace velmora {

class MusicalTime;
class SequenceDocument;

/// One corner of a quad, in the layout of an OpenGL vertex array.
struct RollVertex {
    float x;
    float y;
    RollShade color;
};

/// The picture of a piano roll: quads of four vertices each, drawn in order on
/// the background. Only a range
/// in the middle is blended, because software renderers draw opaque quads many times faster.
class RollPicture {
public:
    /// Replaces the picture with the visible part of a document. `line` is the thickness of a line
    /// in pixels; `index` must be up to date with the document's notes.
    void draw(const RollGeometry& geometry, const RollColors& colors, double line,
              const SequenceDocument& document, const RollIndex& index);

    /// Replaces the picture with notes that are at rest, over bars and beats. Every quad has one
    /// colour; nothing is blended. `index` must be up to date with the notes.
    void drawAtRest(const RollGeometry& geometry, const RollColors& colors, double line,
                    const std::vector<Note>& notes, const MusicalTime& time,
                    const RollIndex& index);

    const std::vector<RollVertex>& vertices() const { return vertices_; }

    /// The vertices to be blended, from the first to one past the last.
    std::size_t blendedBegin() const { return blendedBegin_; }
    std::size_t blendedEnd() const { return blendedEnd_; }

private:
    void add(const RollQuad& quad, RollShade color) { add(quad, color, color); }
    void add(const RollQuad& quad, RollShade bottom, RollShade top);
    void addColumns(const RollGeometry& geometry, const RollColors& colors);

    /// Adds the lines of bars and beats, or of equal steps if `time` is null.
    void addGrid(const RollGeometry& geometry, const RollColors& colors, double line,
                 const MusicalTime* time);
    void addSteps(const RollGeometry& geometry, const RollColors& colors, double line);
    void addTime(const RollGeometry& geometry, const RollColors& colors, double line,
                 const MusicalTime& time);
    void addFadingNotes(const RollGeometry& geometry, const RollColors& colors,
                        const SequenceDocument& document, const RollIndex& index);
    void addBlocks(const RollGeometry& geometry, const RollColors& colors,
                   const SequenceDocument& document, const RollIndex& index);
    void addBlock(const RollQuad& quad, RollShade bottom, RollShade color);
    void addPosition(const RollGeometry& geometry, const RollColors& colors, double line,
                     const SequenceDocument& document);

    std::vector<RollVertex> vertices_; ///< Kept between pictures to reuse its memory.
    std::size_t blendedBegin_ = 0, blendedEnd_ = 0;
};

} // namespace velmora
