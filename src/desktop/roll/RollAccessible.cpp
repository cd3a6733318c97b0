#include "desktop/roll/RollAccessible.h"

#include "desktop/roll/SequenceView.h"
#include "desktop/widgets/AccessibleList.h"
#include "desktop/widgets/noteNames.h"
#include "sequencer/SequenceDocument.h"

#include <QLocale>

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

class RollAccessible : public AccessibleList {
public:
    explicit RollAccessible(SequenceView& view) : AccessibleList(view), view_(view) {}

    int itemCount() const override { return static_cast<int>(notes().size()); }

    QString itemName(int index) const override
    {
        const Note& note = noteAt(index);
        const QLocale locale;
        const Bar bar = view_.document()->time().barAt(note.start);
        return SequenceView::tr("%1, bar %2, beat %3, length in beats %4, channel %5")
            .arg(noteText(note.key), locale.toString(bar.number),
                 locale.toString(bar.beatAt(note.start), 'g', 3),
                 locale.toString(note.length / bar.signature.beatLength(), 'g', 3),
                 locale.toString(note.channel + 1));
    }

    QString itemDescription(int index) const override
    {
        const auto percent = static_cast<int>(100 * noteAt(index).velocity);
        return SequenceView::tr("Velocity %1 %").arg(QLocale().toString(percent));
    }

    QRect itemRect(int index) const override
    {
        const RollGeometry geometry = view_.rollGeometry();
        return geometry.inView(geometry.note(noteAt(index))).toRect();
    }

    QAccessible::State itemState(int index) const override
    {
        QAccessible::State state;
        state.selectable = true;
        state.selected = noteAt(index).selected;
        state.offscreen = !view_.rect().intersects(itemRect(index));
        return state;
    }

    int itemAt(QPoint point) const override
    {
        const RollPoint place = view_.rollGeometry().pointAt(point.x(), point.y());
        const auto isHit = [&](const Note& note) {
            return note.key == static_cast<unsigned>(place.key) && note.start <= place.step &&
                   place.step <= note.start + note.length;
        };
        const auto found = std::ranges::find_if(notes(), isHit);
        return found == notes().end() ? -1 : static_cast<int>(found - notes().begin());
    }

private:
    const std::vector<Note>& notes() const
    {
        static const std::vector<Note> none;
        return view_.document() != nullptr ? view_.document()->sequence().notes() : none;
    }
    const Note& noteAt(int index) const { return notes()[static_cast<std::size_t>(index)]; }

    SequenceView& view_;
};

} // namespace

QAccessibleInterface* makeRollAccessible(const QString& /*className*/, QObject* object)
{
    auto* view = qobject_cast<SequenceView*>(object);
    return view != nullptr ? new RollAccessible(*view) : nullptr;
}

void announceNotes(SequenceView& view)
{
    if (!QAccessible::isActive() || view.document() == nullptr)
        return;
    const Sequence& sequence = view.document()->sequence();
    if (sequence.selection().size() != 1)
        return;
    const auto selected = std::ranges::find(sequence.notes(), true, &Note::selected);
    if (selected == sequence.notes().end())
        return;
    QAccessibleEvent focused(&view, QAccessible::Focus);
    focused.setChild(static_cast<int>(selected - sequence.notes().begin()));
    QAccessible::updateAccessibility(&focused);
}

} // namespace velmora
