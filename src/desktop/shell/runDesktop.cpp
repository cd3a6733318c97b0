#include "desktop/shell/runDesktop.h"

#include "base/Log.h"
#include "desktop/shell/Desktop.h"
#include "desktop/shell/SingleInstance.h"
#include "desktop/widgets/FramingStyle.h"
#include "desktop/widgets/graphics.h"
#include "desktop/widgets/languages.h"
#include "platform/SignalNotifier.h"
#include "platform/pathNames.h"
#include "platform/terminationSignals.h"

#include <QApplication>
#include <QMessageBox>
#include <QTimer>

#include <cstdio>
#include <cstdlib>

namespace velmora {

namespace {

/// Writes Qt's messages to the log. A fatal one, usually about a missing display, ends the program
/// without a core dump.
void logMessage(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text)
{
    const std::string message = text.toStdString();
    switch (type) {
    case QtFatalMsg:
        std::fputs(("velmora: " + message + '\n').c_str(), stderr);
        if (QGuiApplication::primaryScreen() == nullptr)
            std::fputs("velmora: cannot open a window; --help lists the commands that work "
                       "without a display\n",
                       stderr);
        std::_Exit(1);
    case QtWarningMsg:
    case QtCriticalMsg:
        logger("desktop").warn("{}", message);
        break;
    default:
        logger("desktop").debug("{}", message);
    }
}

/// Says on the screen and on standard error that nothing can be drawn. Qt would crash later.
void refuseToStart()
{
    const QString text =
        QObject::tr("Velmora cannot draw its windows because OpenGL does not work "
                    "here. Install libgl1-mesa-dri, which needs no graphics card.");
    std::fputs(("velmora: " + text.toStdString() + '\n').c_str(), stderr);
    QMessageBox::critical(nullptr, QObject::tr("Velmora"), text);
}

} // namespace

int runDesktop(int argc, char** argv, const std::vector<std::string>& files, bool plain,
               const OutputSettings& output)
{
    SignalNotifier quitOnSignal(terminationSignals());
    qInstallMessageHandler(logMessage);
    requestOpenGL();
    QApplication application(argc, argv);
    QApplication::setApplicationName("velmora");
    QApplication::setApplicationDisplayName("Velmora");
    QApplication::setApplicationVersion(VELMORA_VERSION);
    QApplication::setDesktopFileName("velmora");
    QApplication::setWindowIcon(QIcon(":/velmora.svg"));
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setStyle(new FramingStyle); // the application owns it
    installTranslators();

    quitOnSignal.watch([] { QApplication::exit(); });
    if (!hasOpenGL()) {
        refuseToStart();
        return 1;
    }
    QStringList paths;
    std::error_code error;
    for (const std::string& file : files)
        paths += textOf(std::filesystem::absolute(file, error).lexically_normal());
    SingleInstance instance;
    if (instance.handOver(paths))
        return 0;

    Desktop desktop;
    if (plain)
        desktop.application().playing().usePlainReading();
    QObject::connect(&instance, &SingleInstance::opened, &desktop, &Desktop::open,
                     Qt::QueuedConnection);
    // The window appears first; opening devices and files may take some time.
    QTimer launching;
    launching.setSingleShot(true);
    QObject::connect(&launching, &QTimer::timeout, [&] {
        desktop.launch(output);
        desktop.openLastSession();
        if (!paths.isEmpty())
            desktop.open(paths);
    });
    launching.start(0);
    return QApplication::exec();
}

} // namespace velmora
