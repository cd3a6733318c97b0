#pragma once

#include "desktop/console/Drawknob.h"

#include <QWidget>

namespace velmora {

class AppDelegate;
class ConsoleActions;
class ConsoleView;

/// The console of the current instrument: its drawknobs, swells and registrations. For a sampled
/// instrument without a console but with many stops, it has a drawknob for each of them.
class ConsolePanel : public QWidget {
    Q_OBJECT

public:
    /// Both arguments must outlive the panel.
    ConsolePanel(AppDelegate& application, ConsoleActions& actions);

    QSize sizeHint() const override;

    /// True if the current instrument is played from here.
    bool isNeeded() const { return isNeeded_; }

signals:
    /// The console is needed now, or no longer.
    void neededChanged(bool isNeeded);

private:
    void showInstrument();
    void showOrgan();
    void showStops();
    void showStates();
    void showLoadStates();
    void draw(Drawknob::Kind kind, std::size_t number, bool isDrawn);
    void setVolume(std::size_t stop, float volume);
    void showVolume(std::size_t stop, float volume);

    AppDelegate& application_;
    ConsoleView* view_;
    QWidget* registrations_;
    std::vector<float> volumes_; ///< What drawing a stop of a sampled instrument returns to.
    bool isNeeded_ = false;
};

} // namespace velmora
