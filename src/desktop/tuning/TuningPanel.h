#pragma once

#include <QWidget>

class QLabel;
class QListWidget;

namespace velmora {

class AppDelegate;
class TuningStrip;

/// Lists the tunings with their descriptions, and shows the pitches of the current one. It can be
/// docked: it is narrow, and scrolls if it is not high enough.
class TuningPanel : public QWidget {
    Q_OBJECT

public:
    explicit TuningPanel(AppDelegate& application, QWidget* parent = nullptr);

    QSize sizeHint() const override;

signals:
    /// The user wants to open a tuning.
    void openRequested();

private:
    void showTunings();
    void markCurrent();
    void select(int row);
    void showPitches();

    AppDelegate& application_;
    QListWidget* list_;
    TuningStrip* strip_;
    QLabel* pitches_;
};

} // namespace velmora
