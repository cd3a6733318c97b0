#pragma once

#include <QWidget>

#include <cstddef>
#include <vector>

class QComboBox;
class QLabel;
class QScrollArea;
class QSlider;

namespace velmora {

class AppDelegate;

/// The controls of the current instrument: its General MIDI program or its memory use, the tuning,
/// and a volume slider for each stop.
class InstrumentPanel : public QWidget {
    Q_OBJECT

public:
    explicit InstrumentPanel(AppDelegate& application, QWidget* parent = nullptr);

private:
    void showTunings();

    /// Fits the panel to the current instrument and shows its volumes.
    void showInstrument();
    void fitWidth(std::size_t stops);
    void makeSliders(std::size_t count);
    void showVolume(std::size_t stop, float volume);
    void showVolumeTip(std::size_t stop) const;

    AppDelegate& application_;
    QComboBox* programs_;
    QLabel* usage_;
    QComboBox* tunings_;
    QScrollArea* stops_;

    /// Slider i controls stop i. Sliders without a stop in the current instrument are hidden
    /// (docs/decisions.md, 113).
    std::vector<QSlider*> sliders_;
};

} // namespace velmora
