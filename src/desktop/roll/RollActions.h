#pragma once

#include <QObject>

class QActionGroup;
class QMenu;

namespace velmora {

class Commands;
class SequenceScrollView;

/// The commands that choose what the current roll shows.
class RollActions : public QObject {
    Q_OBJECT

public:
    explicit RollActions(Commands& commands);

    /// Sets the current roll, or null. A roll must be replaced before it is destroyed.
    void setRoll(SequenceScrollView* roll);

    void addTo(QMenu& view) const;

private:
    SequenceScrollView* roll_ = nullptr;
    QActionGroup* const lanes_;
};

} // namespace velmora
