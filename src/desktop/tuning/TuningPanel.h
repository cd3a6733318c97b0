#pragma once

#include <QWidget>

#include <string>
#include <vector>

class QLabel;

namespace velmora {

class AppDelegate;
class GroupedList;
class TuningStrip;

/// Lists the tunings with their descriptions, then those of the literature, with a field to search
/// them all, and shows the pitches of the current one. It can be docked: it is narrow, and scrolls
/// if it is not high enough.
class TuningPanel : public QWidget {
    Q_OBJECT

public:
    explicit TuningPanel(AppDelegate& application, QWidget* parent = nullptr);

    QSize sizeHint() const override;

signals:
    /// The user wants to open a tuning.
    void openRequested();

    /// The user wants to see and shape the current tuning.
    void shapeRequested();

private:
    void showTunings();
    void markCurrent();
    void select(std::size_t position);
    void showPitches();

    AppDelegate& application_;
    GroupedList* list_;
    std::vector<std::string> names_; ///< Of the listed tunings.
    std::size_t chosen_ = 0;         ///< The position of the tuning that was chosen last.
    TuningStrip* strip_;
    QLabel* pitches_;
};

} // namespace velmora
