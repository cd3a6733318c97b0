#include "desktop/roll/KeyRuler.h"

#include "desktop/keyboard/KeyboardPicture.h"
#include "preferences/Preferences.h"
#include "sequencer/SequenceDocument.h"

#include <QPainter>

namespace velmora {

namespace {

constexpr int kRulerHeight = 34;

} // namespace

KeyRuler::KeyRuler(QWidget* parent) : QWidget(parent)
{
    setFixedHeight(kRulerHeight);
    setAccessibleName(tr("Key names"));
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void KeyRuler::setDocument(const SequenceDocument* document)
{
    if (document_ != nullptr)
        disconnect(&document_->transport(), nullptr, this, nullptr);
    document_ = document;
    if (document_ != nullptr)
        connect(&document_->transport(), &Transport::frame, this, &KeyRuler::refresh);
    refresh();
}

void KeyRuler::refresh()
{
    std::array<int, 128> states{};
    if (document_ != nullptr && preferredScheme() == Scheme::Calm)
        states = keyStates(&document_->practice(), document_->transport().host().liveKeys());
    if (states == states_)
        return;
    states_ = states;
    update();
}

void KeyRuler::scrollTo(int x)
{
    x_ = x;
    update();
}

void KeyRuler::paintEvent(QPaintEvent* /*event*/)
{
    KeyboardPicture picture(size(), palette());
    // A keyboard that starts at a C is aligned with the columns.
    picture.geometry = {static_cast<double>(getPrefInt("KeyWidth")), 0, 127};
    picture.origin = -x_;
    picture.states = states_;
    QPainter painter(this);
    picture.paint(painter);
}

} // namespace velmora
