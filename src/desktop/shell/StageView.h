#pragma once

#include <QWidget>

class QAction;
class QLabel;

namespace velmora {

class AppDelegate;

/// Shows the current instrument and tuning in type that can be read from a distance, and how to
/// leave the stage, because there is no menu that says so.
class StageView : public QWidget {
    Q_OBJECT

public:
    /// `leave` is the command that leaves the stage. The arguments must outlive the view.
    StageView(AppDelegate& application, const QAction& leave);

private:
    void showSound();
    void showHint();

    AppDelegate& application_;
    const QAction& leave_;
    QLabel *instrument_, *tuning_, *hint_;
};

} // namespace velmora
