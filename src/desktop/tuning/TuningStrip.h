#pragma once

#include <QTimer>
#include <QWidget>

#include <array>
#include <string>

class QPainter;

namespace velmora {

class AppDelegate;

/// Shows by how many cents each pitch class of the current temperament deviates from equal
/// temperament, and follows every change. It is a single row if it is wide enough.
class TuningStrip : public QWidget {
    Q_OBJECT

public:
    explicit TuningStrip(AppDelegate& application, QWidget* parent = nullptr);

    struct Tone {
        std::string name;   ///< As the temperament spells it, or else as `usualPlaces` does.
        double cents = 0.0; ///< Above equal temperament.
        bool operator==(const Tone&) const = default;
    };
    using Tones = std::array<Tone, 12>;

    /// The tones shown, indexed by pitch class.
    const Tones& tones() const { return tones_; }

    QSize minimumSizeHint() const override;

signals:
    /// Other tones are shown.
    void changed();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void read();

    /// Follows moving pitches smoothly until nothing has changed for about two seconds.
    void readOften();
    void fitHeight();
    void describe();

    /// The widths in pixels that the name of a tone and its cents need.
    int nameWidth() const;
    int centsWidth() const;
    int columns() const;
    void paintTone(QPainter& painter, const Tone& tone, const QRectF& place) const;

    AppDelegate& application_;
    Tones tones_;
    QTimer timer_;
    int readsUntilRest_ = 0;
};

} // namespace velmora
