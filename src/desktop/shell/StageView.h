#pragma once

#include <QWidget>

class QAction;
class QLabel;

namespace velmora {

class AppDelegate;

/// How much larger type is on stage.
constexpr double kStageType = 1.5;

/// Makes the type of a window as large as on stage, or as large as its screen has room for.
/// False if the screen has no room even for normal type.
bool enlargeType(QWidget& window);

/// Shows the current instrument and tuning in type that can be read from a distance, and how to
/// leave the stage, because there is no menu that says so.
class StageView : public QWidget {
    Q_OBJECT

public:
    /// `leave` is the command that leaves the stage. The arguments must outlive the view.
    StageView(AppDelegate& application, const QAction& leave);

    /// The type adapts to any size.
    QSize minimumSizeHint() const override { return {0, 0}; }

private:
    void showSound();
    void showHint();

    /// Makes the type as large as the view has room for.
    void fitType();
    void resizeEvent(QResizeEvent* event) override;

    AppDelegate& application_;
    const QAction& leave_;
    QLabel *instrument_, *tuning_, *hint_;
};

} // namespace velmora
