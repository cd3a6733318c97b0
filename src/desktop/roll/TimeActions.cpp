#include "desktop/roll/TimeActions.h"

#include "base/Clock.h"
#include "desktop/roll/editTimeEntry.h"
#include "desktop/widgets/Commands.h"
#include "sequencer/SequenceDocument.h"

#include <QAction>
#include <QMenu>

#include <array>
#include <cmath>

namespace velmora {

TimeActions::TimeActions(Commands& commands)
    : tap(commands.add(
          "piece.tapTempo", tr("Piece"),
          {tr("Ta&p Tempo"), tr("Tap repeatedly to set the tempo of the piece at the position")},
          {Qt::CTRL | Qt::Key_B})),
      menu_(std::make_unique<QMenu>(tr("Tempo &and Signatures")))
{
    tap->setIconText(tr("Tap"));
    tap->setAutoRepeat(false);
    connect(tap, &QAction::triggered, this, &TimeActions::tapTempo);
    menu_->addAction(tap);
    menu_->addSeparator();
    constexpr std::array kIds{"piece.addTempo", "piece.addTimeSignature", "piece.addKeySignature",
                              "piece.addMarker"};
    for (std::size_t kind = 0; kind < kEntryKinds; ++kind) {
        QAction* action = commands.add(kIds.at(kind), tr("Piece"), {addEntryText(kind), {}});
        connect(action, &QAction::triggered, this, [this, kind] {
            const double position = document_->transport().position();
            addTimeEntry(*document_, kind, document_->time().gridAt(position, Grid::Beats),
                         parent_);
        });
        menu_->addAction(action);
    }
    setDocument(nullptr, nullptr);
}

TimeActions::~TimeActions() = default;

void TimeActions::setDocument(SequenceDocument* document, QWidget* parent)
{
    document_ = document;
    parent_ = parent;
    taps_ = {};
    // In the plain reading a piece has no tempos of its own.
    const bool isMusical = document_ != nullptr && document_->reading() == Reading::Musical;
    for (QAction* action : menu_->actions())
        action->setEnabled(isMusical);
    menu_->setEnabled(isMusical);
}

void TimeActions::addTo(QMenu& piece) const
{
    piece.addMenu(menu_.get());
}

void TimeActions::tapTempo()
{
    const double now = getTime();
    const bool goesOn = taps_.goesOn(now);
    const auto beats = taps_.tap(now);
    if (!beats)
        return;
    // All taps together are one edit.
    const QString text = tr("Tap Tempo");
    QUndoStack& history = document_->undoStack();
    if (goesOn && history.undoText() == text && !history.canRedo())
        history.undo();
    MusicalTime time = document_->time();
    time.changeTempoAt(document_->transport().position(), std::round(*beats * 10.0) / 10.0);
    document_->setTime(std::move(time), text);
}

} // namespace velmora
