#pragma once

#include <QWidget>

#include <array>

namespace velmora {

/// Shows the level of the left and the right channel from −60 to 0 dB.
class LevelMeter : public QWidget {
    Q_OBJECT

public:
    explicit LevelMeter(QWidget* parent = nullptr);

    /// Shows new peaks, as amplitudes; falls slowly from higher ones before. Call it at even
    /// intervals.
    void setPeaks(const std::array<float, 2>& peaks);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::array<double, 2> levels_; ///< In decibels.
};

} // namespace velmora
