#pragma once

#include <QKeySequence>
#include <QObject>

#include <functional>

class QAction;
class QActionGroup;
class QMenu;

namespace velmora {

class Commands;
class SequenceScrollView;

/// The commands that choose what the current roll shows.
class RollActions : public QObject {
    Q_OBJECT

public:
    /// All commands whose arrows point along the roll must exist.
    explicit RollActions(Commands& commands);

    /// Sets the current roll, or null. A roll must be replaced before it is destroyed.
    void setRoll(SequenceScrollView* roll);

    void addTo(QMenu& view) const;

signals:
    /// Time runs in another direction in all rolls.
    void turned();

private:
    void turn(bool isAcross);
    void addZoom(Commands& commands, const char* id, const char* icon, const QString& text,
                 const QList<QKeySequence>& shortcuts,
                 const std::function<void(SequenceScrollView&)>& zoom);

    Commands& commands_;
    SequenceScrollView* roll_ = nullptr;
    QAction* const across_;
    QActionGroup *const lanes_, *const zooms_;
};

} // namespace velmora
