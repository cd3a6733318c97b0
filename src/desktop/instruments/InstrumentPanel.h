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

/// The current instrument's controls: its General MIDI program or the memory that it uses, the
/// tuning, and a volume slider for each of its stops.
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
    void tellVolume(std::size_t stop) const;

    AppDelegate& application_;
    QComboBox* programs_;
    QLabel* usage_;
    QComboBox* tunings_;
    QScrollArea* stops_;
    /// Slider i is that of stop i. Those that the current instrument has no stop for are hidden.
    std::vector<QSlider*> sliders_;
};

} // namespace velmora
