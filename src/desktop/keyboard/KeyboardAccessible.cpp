#include "desktop/keyboard/KeyboardAccessible.h"

#include "desktop/keyboard/KeyboardPicture.h"
#include "desktop/keyboard/KeyboardView.h"
#include "desktop/widgets/AccessibleList.h"
#include "desktop/widgets/noteNames.h"
#include "sequencer/LiveKeys.h"

namespace velmora {

namespace {

class KeyboardAccessible : public AccessibleList {
public:
    explicit KeyboardAccessible(KeyboardView& view) : AccessibleList(view), view_(view) {}

    int itemCount() const override
    {
        const KeyboardGeometry geometry = view_.picture().geometry;
        return geometry.hi - geometry.lo + 1;
    }

    QString itemName(int index) const override
    {
        return noteText(static_cast<unsigned>(view_.picture().geometry.lo + index));
    }

    QString itemDescription(int index) const override
    {
        switch (stateAt(index)) {
        case kPressed:
            return KeyboardView::tr("wrong");
        case kWanted:
        case kWanted | kHeld:
            return KeyboardView::tr("to be played");
        case kWanted | kPressed:
            return KeyboardView::tr("right");
        case kHeld:
            return KeyboardView::tr("held");
        default:
            return {};
        }
    }

    QRect itemRect(int index) const override
    {
        const KeyboardPicture picture = view_.picture();
        const auto height = static_cast<float>(view_.height());
        const KeyQuad key = picture.geometry.keys(height)[static_cast<std::size_t>(index)];
        const QRectF rect(picture.origin + key.left, height - key.top, key.right - key.left,
                          key.top - key.bottom);
        return rect.toRect();
    }

    QAccessible::State itemState(int index) const override
    {
        QAccessible::State state;
        state.pressed = (stateAt(index) & (kPressed | kHeld)) != 0;
        return state;
    }

    int itemAt(QPoint point) const override
    {
        const KeyboardPicture picture = view_.picture();
        const int key = picture.keyAt(point);
        return key < 0 ? -1 : key - picture.geometry.lo;
    }

private:
    int stateAt(int index) const
    {
        const KeyboardPicture picture = view_.picture();
        const int key = picture.geometry.lo + index;
        return picture.states[static_cast<std::size_t>(key)];
    }

    KeyboardView& view_;
};

} // namespace

QAccessibleInterface* makeKeyboardAccessible(const QString& /*className*/, QObject* object)
{
    auto* view = qobject_cast<KeyboardView*>(object);
    return view != nullptr ? new KeyboardAccessible(*view) : nullptr;
}

void announceKeys(KeyboardView& view, const KeyboardPicture& before, const KeyboardPicture& after)
{
    if (!QAccessible::isActive())
        return;
    for (int key = after.geometry.lo; key <= after.geometry.hi; ++key) {
        const auto index = static_cast<std::size_t>(key);
        if (before.states[index] == after.states[index])
            continue;
        QAccessible::State changed;
        changed.pressed = true;
        QAccessibleStateChangeEvent pressed(&view, changed);
        QAccessibleEvent description(&view, QAccessible::DescriptionChanged);
        for (QAccessibleEvent* event : {static_cast<QAccessibleEvent*>(&pressed), &description}) {
            event->setChild(key - after.geometry.lo);
            QAccessible::updateAccessibility(event);
        }
    }
}

} // namespace velmora
