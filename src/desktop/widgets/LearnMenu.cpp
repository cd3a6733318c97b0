#include "desktop/widgets/LearnMenu.h"

#include "app/AppDelegate.h"
#include "desktop/widgets/noteNames.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QMenu>
#include <QMessageBox>
#include <QToolTip>

#include <utility>

namespace velmora {

namespace {

QString describe(MidiControl control)
{
    if (control.kind == MidiControl::Kind::Key)
        return LearnMenu::tr("MIDI key %1 on channel %2")
            .arg(noteText(control.number))
            .arg(control.channel + 1);
    return LearnMenu::tr("MIDI controller %1 on channel %2")
        .arg(control.number)
        .arg(control.channel + 1);
}

} // namespace

LearnMenu::LearnMenu(QWidget& widget, AppDelegate& application, std::vector<Learnable> learnables,
                     std::function<void(QMenu&)> addFirst)
    : QObject(&widget), widget_(widget), application_(application),
      learnables_(std::move(learnables)), addFirst_(std::move(addFirst))
{
    if (widget.focusPolicy() == Qt::NoFocus)
        widget.setFocusPolicy(Qt::TabFocus);
    widget.installEventFilter(this);
}

bool LearnMenu::eventFilter(QObject* /*watched*/, QEvent* event)
{
    if (event->type() == QEvent::ContextMenu) {
        auto* menu = new QMenu(&widget_);
        menu->setAttribute(Qt::WA_DeleteOnClose);
        if (addFirst_)
            addFirst_(*menu);
        for (const Learnable& learnable : learnables_)
            addTo(*menu, learnable);
        menu->popup(static_cast<QContextMenuEvent*>(event)->globalPos());
        return true;
    }
    if (event->type() == QEvent::ToolTip) {
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), toolTip(), &widget_);
        return true;
    }
    return false;
}

void LearnMenu::addTo(QMenu& menu, const Learnable& learnable)
{
    const bool isOnly = learnables_.size() == 1;
    const QString name = nameOf(learnable);
    menu.addAction(isOnly ? tr("&Learn MIDI Controller…")
                          : tr("Learn MIDI Controller for %1…").arg(name),
                   this, [this, learnable] { learn(learnable); })
        ->setEnabled(!application_.playing().settings().isPlain);
    const LearnedAction action = learnable.action;
    menu.addAction(isOnly ? tr("&Forget MIDI Controller")
                          : tr("Forget MIDI Controller for %1").arg(name),
                   this, [this, action] { application_.learning().forget(action); })
        ->setEnabled(application_.learning().getControl(action).has_value());
}

void LearnMenu::learn(const Learnable& learnable)
{
    MidiLearning& learning = application_.learning();
    learning.listen(learnable.action);
    auto* box = new QMessageBox(
        QMessageBox::NoIcon, tr("Learn MIDI Controller"),
        tr("Waiting for a MIDI controller for “%1”.\nMove a controller, or press a button or a "
           "key, on a MIDI device.")
            .arg(nameOf(learnable)),
        QMessageBox::Cancel, widget_.window());
    box->setAttribute(Qt::WA_DeleteOnClose);
    connect(box, &QDialog::finished, &learning, &MidiLearning::cancel);
    connect(&learning, &MidiLearning::ended, box, &QDialog::close);
    box->open();
}

QString LearnMenu::nameOf(const Learnable& learnable) const
{
    return learnable.name.isEmpty() ? widget_.accessibleName() : learnable.name;
}

QString LearnMenu::toolTip() const
{
    QStringList lines(widget_.toolTip());
    for (const Learnable& learnable : learnables_) {
        const auto control = application_.learning().getControl(learnable.action);
        if (control)
            lines += learnables_.size() == 1
                         ? describe(*control)
                         : tr("%1: %2").arg(nameOf(learnable), describe(*control));
    }
    return lines.join('\n');
}

} // namespace velmora
