#include "desktop/tuning/TuningReader.h"

#include "app/AppDelegate.h"

#include <QEvent>
#include <QWidget>

#include <utility>

namespace velmora {

namespace {

constexpr int kLooksPerSecond = 30;

} // namespace

TuningReader::TuningReader(AppDelegate& application, QObject* parent)
    : QObject(parent), application_(application)
{
    timer_.setInterval(1000 / kLooksPerSecond);
    connect(&timer_, &QTimer::timeout, this, &TuningReader::look);
}

void TuningReader::serve(QWidget& widget)
{
    widget.installEventFilter(this);
}

void TuningReader::setReading(bool on)
{
    if (std::exchange(isReading_, on) != on)
        count(on ? 1 : -1);
}

bool TuningReader::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show)
        count(1);
    if (event->type() == QEvent::Hide)
        count(-1);
    return QObject::eventFilter(watched, event);
}

void TuningReader::count(int change)
{
    lookers_ += change;
    if (lookers_ == 0) {
        timer_.stop();
    } else if (!timer_.isActive()) {
        look();
        timer_.start();
    }
}

void TuningReader::look()
{
    moment_ = readMoment(application_.player());
    emit read();
}

} // namespace velmora
