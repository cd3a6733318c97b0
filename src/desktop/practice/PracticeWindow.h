#pragma once

#include "sequencer/PracticeHistory.h"

#include <QWidget>

#include <vector>

class QImage;
class QLabel;
class QListWidget;

namespace velmora {

/// Shows how a piece was practised: the latest session and the earlier ones.
class PracticeWindow : public QWidget {
    Q_OBJECT

public:
    explicit PracticeWindow(QWidget* parent);

    /// Shows sessions of a piece, from the oldest to the latest; at least one.
    void show(const QString& piece, std::vector<PracticeEntry> entries);

signals:
    /// The user wants to save the picture of a session.
    void saveRequested(const QImage& picture);

private:
    class Picture;

    void showEntry(int row);

    std::vector<PracticeEntry> entries_; ///< From the latest to the oldest.
    QListWidget* list_;
    QLabel* text_;
    Picture* picture_;
};

} // namespace velmora
