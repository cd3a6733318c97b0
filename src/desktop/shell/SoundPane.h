#pragma once

#include "audio/TestTone.h"
#include "audio/outputDrivers.h"

#include <QTimer>
#include <QWidget>

#include <future>
#include <vector>

class QComboBox;
class QFormLayout;
class QLabel;
class QSlider;

namespace velmora {

class AppDelegate;
class LevelMeter;

/// The pane of the preferences for the sound output: which one plays, at which rate and period, how
/// loud, and what of it arrives. Each change is heard at once, and stored.
class SoundPane : public QWidget {
    Q_OBJECT

public:
    explicit SoundPane(AppDelegate& application);
    ~SoundPane() override;

    /// Shows the preferences, and looks for outputs in the background.
    void read();

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    QComboBox* addChoice(QFormLayout& form, const QString& label, const char* name,
                         const QString& help);
    QLayout* makeVolumeRow();
    QLayout* makeToneRow();
    void fillChoices();
    void fillDevices(const std::string& device);
    void search();
    void takeOutputs();
    void choose();
    void chooseDriver();
    void setVolume(int percent);
    void showStatus();

    AppDelegate& application_;
    TestTone tone_;
    QComboBox *driver_, *device_, *rate_, *period_;
    QSlider* volume_;
    QLabel *percent_, *status_;
    LevelMeter* meter_;
    QTimer levelTimer_, statusTimer_;
    std::vector<OutputDriver> outputs_; ///< As last found; empty before.
    std::future<std::vector<OutputDriver>> searching_;
};

} // namespace velmora
