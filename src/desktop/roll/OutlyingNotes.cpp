#include "desktop/roll/OutlyingNotes.h"

#include "desktop/roll/SequenceView.h"
#include "desktop/widgets/noteNames.h"
#include "preferences/Preferences.h"
#include "sequencer/SequenceDocument.h"

#include <QEvent>
#include <QPushButton>

namespace velmora {

namespace {

constexpr int kEdge = 4; ///< Between a text and the edges of the roll, in pixels.

} // namespace

OutlyingNotes::OutlyingNotes(SequenceView& view)
    : QObject(&view), view_(view), below_{newText(), 0, {}}, above_{newText(), 0, {}}
{
    connect(below_.text, &QPushButton::clicked, this, [this] { choose(below_); });
    connect(above_.text, &QPushButton::clicked, this, [this] { choose(above_); });
    connect(&view, &SequenceView::documentChanged, this, [this] {
        if (view_.document() != nullptr)
            connect(view_.document(), &SequenceDocument::changed, this, &OutlyingNotes::update);
        update();
    });
    connect(&view, &SequenceView::turned, this, &OutlyingNotes::place);
    view.installEventFilter(this);
    update();
}

QPushButton* OutlyingNotes::newText()
{
    auto* text = new QPushButton(&view_);
    text->setFlat(true);
    text->setAutoFillBackground(true); // readable above notes
    text->setCursor(Qt::PointingHandCursor);
    text->setToolTip(tr("The keyboard does not show these keys. Click to go to the first note."));
    return text;
}

void OutlyingNotes::update()
{
    const int lowest = getPrefInt("KeyRangeLo");
    const int highest = getPrefInt("KeyRangeHi");
    for (Side* side : {&below_, &above_}) {
        side->count = 0;
        side->first.reset();
    }
    if (const SequenceDocument* document = view_.document()) {
        const auto& notes = document->sequence().notes();
        for (std::size_t i = 0; i < notes.size(); ++i) {
            const auto key = static_cast<int>(notes[i].key);
            if (key >= lowest && key <= highest)
                continue;
            Side& side = key < lowest ? below_ : above_;
            ++side.count;
            if (!side.first || notes[i].start < notes[*side.first].start)
                side.first = i;
        }
    }
    below_.text->setText(tr("%n note(s) below %1", nullptr, below_.count)
                             .arg(noteText(static_cast<unsigned>(lowest))));
    above_.text->setText(tr("%n note(s) above %1", nullptr, above_.count)
                             .arg(noteText(static_cast<unsigned>(highest))));
    for (const Side& side : {below_, above_})
        side.text->setVisible(side.count > 0);
    place();
}

void OutlyingNotes::place()
{
    const bool isAcross = view_.rollGeometry().isAcross;
    for (const Side& side : {below_, above_}) {
        side.text->adjustSize();
        const int right = view_.width() - side.text->width() - kEdge;
        const int bottom = view_.height() - side.text->height() - kEdge;
        const bool isAbove = side.text == above_.text;
        side.text->move(isAbove && !isAcross ? right : kEdge, isAbove && isAcross ? kEdge : bottom);
    }
}

void OutlyingNotes::choose(const Side& side)
{
    if (side.first)
        emit chosen(view_.document()->sequence().notes()[*side.first]);
}

bool OutlyingNotes::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize)
        place();
    return QObject::eventFilter(watched, event);
}

} // namespace velmora
