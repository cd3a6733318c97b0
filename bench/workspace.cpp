// Measures the main window: the time until it is on the screen, the time that a layout takes, and
// the work of the main thread while the program idles and while it plays a piece with all panels
// open. Needs a display.

#include "desktop/shell/Desktop.h"
#include "desktop/shell/SequencePage.h"
#include "desktop/widgets/graphics.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QOpenGLWidget>
#include <QTimer>
#include <spdlog/fmt/fmt.h>

#include <ctime>

using namespace velmora;

namespace {

constexpr int kMilliseconds = 5000;

double cpuSeconds(clockid_t clock)
{
    timespec time{};
    clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

void runFor(int milliseconds)
{
    QTimer::singleShot(milliseconds, qApp, [] { QApplication::exit(); });
    QApplication::exec();
}

/// Prints how busy the program is for some seconds, and how long the main thread works for each of
/// `frames`.
void measureLoad(const char* what, const std::size_t& frames)
{
    const double thread = cpuSeconds(CLOCK_THREAD_CPUTIME_ID);
    const double process = cpuSeconds(CLOCK_PROCESS_CPUTIME_ID);
    const std::size_t before = frames;
    runFor(kMilliseconds);
    const double own = cpuSeconds(CLOCK_THREAD_CPUTIME_ID) - thread;
    fmt::print("{}: {:.1f} % of a core, the main thread {:.1f} %", what,
               100e3 * (cpuSeconds(CLOCK_PROCESS_CPUTIME_ID) - process) / kMilliseconds,
               100e3 * own / kMilliseconds);
    if (frames > before)
        fmt::print("; {} frames, {:.2f} ms of it for each", frames - before,
                   1e3 * own / static_cast<double>(frames - before));
    fmt::print("\n");
}

} // namespace

int main(int argc, char** argv)
{
    QElapsedTimer timer;
    timer.start();
    requestOpenGL();
    const QApplication qt(argc, argv);
    Desktop desktop;
    std::size_t frames = 0;
    QObject::connect(desktop.workspace().findChild<QOpenGLWidget*>(), &QOpenGLWidget::frameSwapped,
                     [&] {
                         if (++frames == 1)
                             fmt::print("first window: {} ms\n", timer.elapsed());
                     });
    desktop.launch();
    runFor(3000);
    measureLoad("idle", frames);

    ShellActions& shell = desktop.shell();
    for (QAction* action :
         {shell.editLayout, shell.playLayout, shell.editLayout, shell.playLayout}) {
        timer.restart();
        action->trigger();
        QApplication::processEvents();
        fmt::print("layout {}: {} ms\n", action->iconText().toStdString(), timer.elapsed());
    }

    if (argc > 1)
        desktop.open({argv[1]});
    runFor(1000);
    frames = 0;
    if (SequencePage* piece = desktop.pages().current()) {
        QObject::connect(piece->findChild<QOpenGLWidget*>(), &QOpenGLWidget::frameSwapped,
                         [&] { ++frames; });
        piece->document().transport().play();
        measureLoad("playing", frames);
        piece->document().transport().play();
    }
}
