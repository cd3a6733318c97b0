#pragma once

#include <QMenu>
#include <QObject>

#include <vector>

class QAction;

namespace velmora {

class Commands;
class Tunings;

/// The commands that move the root of the tunings and choose the pitch of A.
class TranspositionCommands : public QObject {
    Q_OBJECT

public:
    TranspositionCommands(Tunings& tunings, Commands& commands);

    /// Adds the commands to a menu, in two menus of their own.
    void addTo(QMenu& menu);

private:
    void check();

    Tunings& tunings_;
    QMenu root_, pitch_;
    std::vector<QAction*> pitches_; ///< In the order of `usualPitches`.
};

} // namespace velmora
