#pragma once

#include "sequencer/PracticeHistory.h"

#include <QObject>
#include <QString>

#include <vector>

class QImage;
class QWidget;

namespace velmora {

class PracticeWindow;
class SequenceDocument;

/// Shows what the user has practised, and keeps it with the earlier sessions of the piece.
class PracticeResults : public QObject {
    Q_OBJECT

public:
    /// `window` owns the object, and is the parent of the window with the results.
    explicit PracticeResults(QWidget& window);

    /// Adds the result of the last session, and shows it once the program is idle. A piece without
    /// a file has no history.
    void add(const SequenceDocument& document);

private:
    void show(const QString& piece, std::vector<PracticeEntry> entries, const QString& error);
    void savePicture(const QImage& picture);

    QWidget& parent_;
    PracticeWindow* window_ = nullptr; ///< Null until it is needed.
};

} // namespace velmora
