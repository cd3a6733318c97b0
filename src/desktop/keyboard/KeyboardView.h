#pragma once

#include "desktop/keyboard/KeyboardPicture.h"

#include <QOpenGLWidget>

#include <optional>

namespace velmora {

class KeyboardDocument;
class LiveInput;
class LiveKeys;

/// The on-screen keyboard. It shows the state of each key, whoever plays it, and plays a key while
/// the left mouse button is held on it. Its keys fill its width; in the classic scheme they are as
/// wide as the preference says, and centred if there is room.
class KeyboardView : public QOpenGLWidget {
    Q_OBJECT

public:
    /// `input` receives the keys that the mouse presses; `keys` are those that the user holds. Both
    /// must outlive the view.
    KeyboardView(LiveInput& input, const LiveKeys& keys, QWidget* parent = nullptr);

    /// Sets the document that supplies the key states and is told of keys that the mouse plays;
    /// null for none. A document must be replaced before it is destroyed.
    void setDocument(KeyboardDocument* document);
    KeyboardDocument* document() const { return document_; }

    /// Tells the document that the held keys have changed, and shows them.
    void midiInput();

    /// Lights the sounding keys by how pure they are; all `None` for as usual.
    void setPurities(const std::array<Purity, 128>& purities);

    /// Schedules a repaint if the picture has changed.
    void refresh();

    /// The keys as they are to be shown now.
    KeyboardPicture picture() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintGL() override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    /// Releases the key that the mouse holds and presses another one, if it is not `kNoKey`.
    void press(int key);

    static constexpr int kNoKey = -1;

    LiveInput& input_;
    const LiveKeys& keys_;
    KeyboardDocument* document_ = nullptr;
    std::array<Purity, 128> purities_{};
    int pressedKey_ = kNoKey;
    std::optional<KeyboardPicture> painted_;
};

} // namespace velmora
