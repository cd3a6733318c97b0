#pragma once

#include <QTimer>
#include <QWidget>

#include <array>
#include <string>

namespace velmora {

class AppDelegate;

/// Shows by how many cents each pitch class of the current temperament departs from equal
/// temperament, as it is from moment to moment.
class TuningStrip : public QWidget {
    Q_OBJECT

public:
    explicit TuningStrip(AppDelegate& application, QWidget* parent = nullptr);

    struct Tone {
        /// That of the pitch where it is one of quarter-comma meantone, or of the key.
        std::string name;
        double cents = 0.0; ///< Above equal temperament.
        bool operator==(const Tone&) const = default;
    };
    using Tones = std::array<Tone, 12>;

    /// By pitch class, as they are shown.
    const Tones& tones() const { return tones_; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void look();

    AppDelegate& application_;
    Tones tones_;
    QTimer looking_;
};

} // namespace velmora
