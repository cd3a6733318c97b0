#pragma once

#include <QTimer>
#include <QWidget>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QSpinBox;

namespace velmora {

class AppDelegate;
class DriftMeter;

/// Chooses how a temperament that follows the music does so, and shows how far its pitch has
/// drifted. It is empty while another one is played.
class AdaptivePane : public QWidget {
    Q_OBJECT

public:
    explicit AdaptivePane(AppDelegate& application);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void showTuning();
    void showOptions();
    void showDrift();
    void updateTimer();

    AppDelegate& application_;
    QWidget* content_;
    QCheckBox* corrects_;
    QSpinBox* time_;
    QComboBox* drift_;
    DriftMeter* meter_;
    QFormLayout* form_;
    bool drifts_ = false; ///< The temperament can.
    QTimer timer_;
};

} // namespace velmora
