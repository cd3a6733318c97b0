// Measures the frames per second of a window with 100,000 notes while 10,000 of them are dragged,
// and while the roll is scrolled. A frame lasts from the event to the picture on the screen. Needs
// a display.

#include "desktop/roll/SequenceScrollView.h"
#include "desktop/roll/SequenceView.h"
#include "desktop/shell/Desktop.h"
#include "desktop/shell/SequencePage.h"
#include "desktop/widgets/graphics.h"
#include "manyNotes.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QTimer>
#include <spdlog/fmt/fmt.h>

#include <functional>

using namespace velmora;

namespace {

constexpr int kMilliseconds = 10'000;

/// Sends the next event whenever the result of the previous one is on the screen.
void measure(const char* name, QWidget& view, const std::function<void(std::size_t)>& sendEvent)
{
    std::size_t frames = 0;
    QElapsedTimer timer;
    const auto shown = QObject::connect(
        static_cast<QOpenGLWidget*>(&view), &QOpenGLWidget::frameSwapped, &view,
        [&] {
            if (timer.elapsed() < kMilliseconds)
                sendEvent(++frames);
            else
                QApplication::exit();
        },
        Qt::QueuedConnection);
    timer.start();
    sendEvent(0);
    QApplication::exec();
    QObject::disconnect(shown);
    fmt::print("{}: {:.1f} frames per second\n", name,
               static_cast<double>(frames) * 1e3 / static_cast<double>(timer.elapsed()));
}

void sendMouse(SequenceView& view, QEvent::Type type, QPointF place, Qt::MouseButtons buttons)
{
    // Shift keeps the other notes selected.
    QMouseEvent event(type, place, view.mapToGlobal(place), Qt::LeftButton, buttons,
                      Qt::ShiftModifier);
    QApplication::sendEvent(&view, &event);
}

} // namespace

int main(int argc, char** argv)
{
    requestOpenGL();
    const QApplication qt(argc, argv);
    Desktop desktop;
    SequencePage* window = nullptr;
    QObject::connect(&desktop.pages(), &SequencePages::opened, &qt,
                     [&](SequencePage& opened) { window = &opened; });
    desktop.pages().create();
    addManyNotes(*window->document().edit());
    window->document().updateExtent();
    window->showDocument();
    auto& view = *window->findChild<SequenceView*>();

    QTimer::singleShot(1000, &qt, [] { QApplication::exit(); });
    QApplication::exec();
    selectTenth(*window->document().edit());
    const RollGeometry geometry = view.rollGeometry();
    const RollQuad grip = geometry.note(window->document().sequence().notes()[0]);
    const QPointF place((grip.left + grip.right) / 2, view.height() - 1 - geometry.yOf(0.5));
    sendMouse(view, QEvent::MouseButtonPress, place, Qt::LeftButton);
    fmt::print("{} notes selected, a roll of {} x {} pixels\n",
               window->document().sequence().selection().size(), view.width(), view.height());
    measure("dragging", view, [&](std::size_t frame) {
        const auto distance = static_cast<double>(frame % 200);
        sendMouse(view, QEvent::MouseMove, place - QPointF(0, distance), Qt::LeftButton);
    });
    sendMouse(view, QEvent::MouseButtonRelease, place, Qt::NoButton);
    auto& scrollView = *window->findChild<SequenceScrollView*>();
    measure("scrolling", view, [&](std::size_t frame) {
        scrollView.scrollTo({scrollView.location().x(), 8 * static_cast<int>(1 + frame % 5000)});
    });
    window->settle();
}
