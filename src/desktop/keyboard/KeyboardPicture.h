#pragma once

#include "desktop/keyboard/KeyboardGeometry.h"
#include "desktop/widgets/scheme.h"
#include "tuning/intervals.h"

#include <QSize>

#include <array>
#include <optional>

class QPainter;
class QPalette;

namespace velmora {

class KeyboardDocument;
class LiveKeys;

/// Returns the state of each key as it is shown: as the document says or, where it says nothing, as
/// the user holds the key. In the calm scheme a key is only wrong while another one is wanted. See
/// docs/decisions.md, 112.
std::array<int, 128> keyStates(const KeyboardDocument* document, const LiveKeys& keys);

/// Everything that the picture of the keyboard depends on.
struct KeyboardPicture {
    Scheme scheme;
    KeyboardGeometry geometry;
    double origin = 0.0; ///< The x coordinate of the first white key in the view.
    QSize size;          ///< Of the view.
    Color played;
    Color correct;
    Color sustained;
    Color wrong;
    bool hasNames;
    bool isDark;
    std::array<int, 128> states{}; ///< As `KeyboardDocument::stateOfNote` returns them.

    std::array<Purity, 128> purities{}; ///< Of the keys that are lit by it.

    /// Lays out the keys of the preferences in a view of this size and theme; no key is pressed.
    KeyboardPicture(QSize viewSize, const QPalette& palette);

    void paint(QPainter& painter) const;

    /// The key at a point of the view, or −1 if there is none.
    int keyAt(QPointF point) const;

    bool operator==(const KeyboardPicture&) const = default;

private:
    /// The colour of a state; null for a released key and for an unknown state.
    const Color* color(int state) const;

    /// The colour of a key; empty for a released one. A purity does not hide that a key is right or
    /// wrong.
    std::optional<QColor> fill(const KeyQuad& quad) const;
    Purity purity(const KeyQuad& quad) const;
    int state(const KeyQuad& quad) const { return states[static_cast<std::size_t>(quad.key)]; }

    void paintClassic(QPainter& painter) const;
    void paintCalm(QPainter& painter) const;
    void paintNames(QPainter& painter) const;
    int nameHeight() const;
};

} // namespace velmora
