#pragma once

#include <QWidget>

namespace velmora {

/// Shows how far a pitch has drifted, on a scale of half a semitone to either side, and as a
/// number.
class DriftMeter : public QWidget {
    Q_OBJECT

public:
    explicit DriftMeter(QWidget* parent = nullptr);

    void setCents(double cents);

    /// What the number says.
    QString text() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    double cents_ = 0.0; ///< Rounded to what is shown.
};

} // namespace velmora
