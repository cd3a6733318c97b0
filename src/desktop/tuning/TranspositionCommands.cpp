#include "desktop/tuning/TranspositionCommands.h"

#include "app/Tunings.h"
#include "desktop/tuning/transposing.h"
#include "desktop/widgets/Commands.h"

#include <QAction>

namespace velmora {

TranspositionCommands::TranspositionCommands(Tunings& tunings, Commands& commands)
    : tunings_(tunings), root_(tr("&Root")), pitch_(tr("Pitch of &A"))
{
    const QString group = tr("Tuning");
    const auto addMove = [&](const char* id, const QString& text, int semitones, int key) {
        QAction* action = commands.add(id, group, {text, {}}, {QKeySequence(key)});
        connect(action, &QAction::triggered, this,
                [this, semitones] { moveRoot(tunings_, semitones); });
        root_.addAction(action);
    };
    constexpr int kShifted = Qt::CTRL | Qt::SHIFT;
    addMove("tuning.fifthUp", tr("Root a &Fifth Up"), 7, kShifted | Qt::Key_Right);
    addMove("tuning.fifthDown", tr("Root a F&ifth Down"), -7, kShifted | Qt::Key_Left);
    addMove("tuning.semitoneUp", tr("Root a &Semitone Up"), 1, kShifted | Qt::Key_PageUp);
    addMove("tuning.semitoneDown", tr("Root a S&emitone Down"), -1, kShifted | Qt::Key_PageDown);

    // Alt and the digits from 4 to 9, then 0.
    static constexpr const char* kIds[] = {"tuning.a392",     "tuning.a415", "tuning.a430",
                                           "tuning.a440",     "tuning.a442", "tuning.a466",
                                           "tuning.aOfTuning"};
    static constexpr int kDigits[] = {Qt::Key_4, Qt::Key_5, Qt::Key_6, Qt::Key_7,
                                      Qt::Key_8, Qt::Key_9, Qt::Key_0};
    for (std::size_t i = 0; const auto& a : usualPitches()) {
        QAction* action =
            commands.add(kIds[i], group, {pitchText(a), {}}, {QKeySequence(Qt::ALT | kDigits[i])});
        ++i;
        action->setCheckable(true);
        connect(action, &QAction::triggered, this, [this, a] {
            setA(tunings_, a);
            check();
        });
        pitch_.addAction(action);
        pitches_.push_back(action);
    }
    connect(&tunings_, &Tunings::changed, this, &TranspositionCommands::check);
    check();
}

void TranspositionCommands::check()
{
    for (std::size_t i = 0; const auto& a : usualPitches())
        pitches_[i++]->setChecked(tunings_.transposition().a == a);
}

void TranspositionCommands::addTo(QMenu& menu)
{
    menu.addMenu(&root_);
    menu.addMenu(&pitch_);
}

} // namespace velmora
