#pragma once

#include "desktop/keyboard/KeyboardGeometry.h"
#include "preferences/Color.h"

#include <QOpenGLWidget>

#include <array>
#include <optional>

namespace velmora {

class KeyboardDocument;
class LiveInput;

/// The on-screen keyboard: shows the state of each key in the preference colours and plays a key
/// while the mouse is held on it. In a window that is wider than its keys it stands in the middle.
class KeyboardView : public QOpenGLWidget {
    Q_OBJECT

public:
    /// What the mouse plays goes to `player`, which must outlive the view.
    explicit KeyboardView(LiveInput& player, QWidget* parent = nullptr);

    /// The document whose key states are shown and which is told of keys played; null for none. It
    /// must be taken away before it ends.
    void setDocument(KeyboardDocument* document);
    KeyboardDocument* getDocument() const { return document_; }

    /// Draws again soon if that would show anything new. Returns the document.
    KeyboardDocument* doDraw();

    /// Makes the window as wide as the preferences want it, as far as the screen goes, unless it
    /// fills its screen or they have not changed since. The view is to be as wide as its window.
    void updateWindowSize();

    QSize sizeHint() const override;

protected:
    void paintGL() override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    /// All that the picture depends on but the size.
    struct Picture {
        KeyboardGeometry geometry;
        Color played;
        Color correct;
        Color sustained;
        Color wrong;
        bool hasNames;
        std::array<int, 128> states; // as the document answers

        /// The colour of a state, none for a key at rest or a state that is not known.
        const Color* color(int state) const;
        bool operator==(const Picture&) const = default;
    };

    Picture picture() const;
    void drawKeys(const Picture& picture) const;
    void drawNames(const Picture& picture);

    /// The x at which the keys begin.
    int origin(const KeyboardGeometry& geometry) const;
    int keyAt(const QPointF& point) const;

    /// Lets go of the key that the mouse holds and presses another one, or `kNoKey`.
    void press(int key);

    static constexpr int kNoKey = -1;

    LiveInput& player_;
    KeyboardDocument* document_ = nullptr;
    int pressedKey_ = kNoKey;
    std::optional<Picture> painted_;
    std::optional<KeyboardGeometry> fitted_; ///< What the window was last made as wide as.
};

} // namespace velmora
