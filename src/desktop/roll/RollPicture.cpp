#include "desktop/roll/RollPicture.h"

#include "desktop/keyboard/KeyboardGeometry.h"
#include "sequencer/SequenceDocument.h"
#include "sequencer/SequenceTime.h"
#include "sound/keys.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace velmora {

namespace {

/// The opacity of a note's end in the classic scheme.
constexpr std::uint8_t kEndOpacity = 13; // 5 %

/// If a step is lower than this many pixels, only the lines of the beats are drawn, because all the
/// lines together would cover the roll.
constexpr int kMinGridStep = 3;

/// The largest radius of a note's corners in pixels, and the width of the outline of a selected
/// note.
constexpr double kCorner = 3.0;
constexpr double kOutline = 2.0;

/// A note that is lower or narrower than this many pixels is a plain rectangle.
constexpr double kSmallest = 5.0;

RollShade columnShade(int key, const RollColors& colors)
{
    if (key == kMiddleC)
        return colors.middleC;
    return isBlackKey(key) ? colors.blackColumn : colors.whiteColumn;
}

RollQuad inset(const RollQuad& quad, double pixels)
{
    return {quad.left + pixels, quad.right - pixels, quad.bottom + pixels, quad.top - pixels};
}

} // namespace

void RollPicture::draw(const RollGeometry& geometry, const RollColors& colors, double line,
                       const SequenceDocument& document, const RollIndex& index)
{
    vertices_.clear();
    addColumns(geometry, colors);
    blendedBegin_ = vertices_.size();
    if (const Interval& interval = document.transport().interval(); !interval.isEmpty())
        add({0.0, geometry.width, geometry.yOf(interval.start), geometry.yOf(interval.end)},
            colors.interval);
    if (colors.scheme == Scheme::Classic)
        addFadingNotes(geometry, colors, document, index);
    blendedEnd_ = vertices_.size();
    const bool hasBars = colors.scheme == Scheme::Calm && document.reading() == Reading::Musical;
    addGrid(geometry, colors, line, hasBars ? &document.time() : nullptr);
    if (colors.scheme == Scheme::Calm)
        addBlocks(geometry, colors, document, index);
    addPosition(geometry, colors, line, document);
}

void RollPicture::drawAtRest(const RollGeometry& geometry, const RollColors& colors, double line,
                             const std::vector<Note>& notes, const MusicalTime& time,
                             const RollIndex& index)
{
    vertices_.clear();
    addColumns(geometry, colors);
    blendedBegin_ = blendedEnd_ = vertices_.size();
    addGrid(geometry, colors, line, &time);
    index.visit(notes, geometry.bottomStep(), geometry.topStep(), [&](const Note& note) {
        const RollShade color = colors.atRest(note);
        addBlock(geometry.block(note), colors.onset(color), color);
    });
}

void RollPicture::addColumns(const RollGeometry& geometry, const RollColors& colors)
{
    for (int key = geometry.firstKey(); key < geometry.endKey(); ++key)
        if (const RollShade color = columnShade(key, colors); color != colors.whiteColumn)
            add(geometry.column(key), color);
}

void RollPicture::addFadingNotes(const RollGeometry& geometry, const RollColors& colors,
                                 const SequenceDocument& document, const RollIndex& index)
{
    index.visit(document.sequence().notes(), geometry.bottomStep(), geometry.topStep(),
                [&](const Note& note) {
                    const RollShade onset = note.selected ? colors.selected
                                            : note.active ? colors.playing
                                                          : colors.atRest(note);
                    RollShade end = onset;
                    end[3] = kEndOpacity;
                    add(geometry.note(note), onset, end);
                });
}

void RollPicture::addBlocks(const RollGeometry& geometry, const RollColors& colors,
                            const SequenceDocument& document, const RollIndex& index)
{
    const bool isPlain = geometry.keyHeight < kMinGridStep; // thousands of notes are in sight
    const bool isRecording = document.transport().mode() == Transport::Mode::Recording;
    index.visit(document.sequence().notes(), geometry.bottomStep(), geometry.topStep(),
                [&](const Note& note) {
                    RollQuad block = geometry.block(note);
                    if (note.selected) {
                        addBlock(block, colors.outline, colors.outline);
                        block = inset(block, std::min(kOutline, (block.right - block.left) / 4));
                        if (block.top <= block.bottom)
                            return;
                    }
                    const bool isTaken = isRecording && document.recorder().isTaken(note.id);
                    const RollShade color = note.selected ? colors.selected
                                            : isTaken     ? colors.recorded
                                            : note.active ? colors.playing
                                                          : colors.atRest(note);
                    if (isPlain)
                        add(block, color);
                    else
                        addBlock(block, colors.onset(color), color);
                });
}

void RollPicture::addBlock(const RollQuad& quad, RollShade bottom, RollShade color)
{
    if (quad.top - quad.bottom < kSmallest || quad.right - quad.left < kSmallest) {
        add(quad, color);
        return;
    }
    const double corner =
        std::min({kCorner, (quad.right - quad.left) / 4, (quad.top - quad.bottom) / 4});
    const auto [left, right, low, high, edge] = std::array{
        static_cast<float>(quad.left), static_cast<float>(quad.right),
        static_cast<float>(quad.bottom), static_cast<float>(quad.top), static_cast<float>(corner)};
    vertices_.insert(vertices_.end(), {{left + edge, low, bottom},
                                       {right - edge, low, bottom},
                                       {right, low + edge, bottom},
                                       {left, low + edge, bottom},
                                       {left, low + edge, color},
                                       {right, low + edge, color},
                                       {right, high - edge, color},
                                       {left, high - edge, color},
                                       {left, high - edge, color},
                                       {right, high - edge, color},
                                       {right - edge, high, color},
                                       {left + edge, high, color}});
}

void RollPicture::addPosition(const RollGeometry& geometry, const RollColors& colors, double line,
                              const SequenceDocument& document)
{
    const Transport& transport = document.transport();
    const auto across = [&](double step, double height) {
        const double bottom = geometry.yOf(step);
        add({0.0, geometry.width, bottom, bottom + height}, colors.selected);
    };
    if (colors.scheme == Scheme::Classic) {
        across(transport.position(), line);
        return;
    }
    if (const Interval& interval = transport.interval(); !interval.isEmpty()) {
        const double height = transport.loops() ? 2 * line : line;
        across(interval.start, height);
        across(interval.end, height);
    }
    across(transport.position(), 2 * line);
}

// Lines are narrow quads, so that they cover the same pixels with every driver.
void RollPicture::addGrid(const RollGeometry& geometry, const RollColors& colors, double line,
                          const MusicalTime* time)
{
    const auto addColumnLines = [&](RollShade color, int first, int keys) {
        for (int key = first; key <= geometry.endKey(); key += keys) {
            const double left = geometry.xOf(key);
            add({left, left + line, 0.0, geometry.height}, color);
        }
    };
    addColumnLines(colors.columnLine, geometry.firstKey(), 1);
    if (time != nullptr)
        addTime(geometry, colors, line, *time);
    else
        addSteps(geometry, colors, line);
    if (colors.octaveLine != colors.columnLine)
        addColumnLines(colors.octaveLine, (geometry.firstKey() + 11) / 12 * 12, 12);
}

void RollPicture::addTime(const RollGeometry& geometry, const RollColors& colors, double line,
                          const MusicalTime& time)
{
    for (const auto& [step, kind] : time.gridLines(geometry.firstStep(), geometry.endStep(),
                                                   visibleGrid(geometry.keyHeight))) {
        const double bottom = std::round(geometry.yOf(step));
        const RollShade& color = kind == GridLine::Kind::Bar    ? colors.barLine
                                 : kind == GridLine::Kind::Beat ? colors.beatLine
                                                                : colors.stepLine;
        add({0.0, geometry.width, bottom, bottom + line}, color);
    }
}

void RollPicture::addSteps(const RollGeometry& geometry, const RollColors& colors, double line)
{
    const int stride = geometry.keyHeight < kMinGridStep ? kStepsPerBeat : 1;
    for (int step = geometry.firstStep() / stride * stride; step < geometry.endStep();
         step += stride) {
        const double bottom = geometry.yOf(step);
        add({0.0, geometry.width, bottom, bottom + line}, step % kStepsPerBar == 0 ? colors.barLine
                                                          : step % kStepsPerBeat == 0
                                                              ? colors.beatLine
                                                              : colors.stepLine);
    }
}

void RollPicture::add(const RollQuad& quad, RollShade bottom, RollShade top)
{
    const auto [left, right, low, high] =
        std::array{static_cast<float>(quad.left), static_cast<float>(quad.right),
                   static_cast<float>(quad.bottom), static_cast<float>(quad.top)};
    vertices_.insert(
        vertices_.end(),
        {{left, low, bottom}, {right, low, bottom}, {right, high, top}, {left, high, top}});
}

} // namespace velmora
