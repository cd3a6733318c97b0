#pragma once

#include "desktop/keyboard/KeyboardGeometry.h"
#include "preferences/Color.h"

#include <QOpenGLWidget>

#include <array>
#include <optional>

namespace velmora {

class KeyboardDocument;
class LiveInput;

/// The on-screen keyboard. It shows the state of each key in the colours of the preferences, and
/// plays a key while the left mouse button is held on it. If it is wider than its keys, they are
/// centred.
class KeyboardView : public QOpenGLWidget {
    Q_OBJECT

public:
    /// `input` receives the keys that the mouse presses; it must outlive the view.
    explicit KeyboardView(LiveInput& input, QWidget* parent = nullptr);

    /// Sets the document that supplies the key states and is told of keys that the mouse plays;
    /// null for none. A document must be replaced before it is destroyed.
    void setDocument(KeyboardDocument* document);
    KeyboardDocument* document() const { return document_; }

    /// Schedules a repaint if the picture has changed.
    void refresh();

    /// Makes the window as wide as its keys, but no wider than the screen. Does nothing if the
    /// window is maximised or full-screen, or if the preferences have not changed since the last
    /// call. The view must be as wide as its window.
    void updateWindowSize();

    QSize sizeHint() const override;

protected:
    void paintGL() override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    /// Everything that the picture depends on, except the size.
    struct Picture {
        KeyboardGeometry geometry;
        Color played;
        Color correct;
        Color sustained;
        Color wrong;
        bool hasNames;
        std::array<int, 128> states; ///< As `KeyboardDocument::stateOfNote` returns them.

        /// The colour of a state; null for a released key and for an unknown state.
        const Color* color(int state) const;
        bool operator==(const Picture&) const = default;
    };

    Picture picture() const;
    void drawKeys(const Picture& picture) const;
    void drawNames(const Picture& picture);

    /// The x coordinate of the first key in the view.
    int origin(const KeyboardGeometry& geometry) const;
    int keyAt(const QPointF& point) const;

    /// Releases the key that the mouse holds and presses another one, if it is not `kNoKey`.
    void press(int key);

    static constexpr int kNoKey = -1;

    LiveInput& input_;
    KeyboardDocument* document_ = nullptr;
    int pressedKey_ = kNoKey;
    std::optional<Picture> painted_;
    std::optional<KeyboardGeometry> fitted_; ///< The keys that the window was last fitted to.
};

} // namespace velmora
