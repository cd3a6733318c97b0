#include "cli/systemFindings.h"

#include "app/sizeString.h"
#include "audio/libraryVersions.h"
#include "cli/version.h"
#include "desktop/widgets/graphics.h"
#include "platform/runInChild.h"
#include "preferences/settings.h"

#include <QDBusConnection>
#include <QGuiApplication>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QScreen>
#include <QSysInfo>
#include <nlohmann/json.hpp>
#include <spdlog/fmt/fmt.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <sched.h>
#include <thread>

namespace velmora {

namespace {

void endIfFatal(QtMsgType type, const QMessageLogContext& /*context*/, const QString& /*text*/)
{
    if (type == QtFatalMsg)
        std::_Exit(1);
}

void addLibraries(std::vector<Finding>& findings)
{
    const auto versions =
        runInChild([] { return nlohmann::json(soundLibraryVersions()).dump(); }, kLongestSearch);
    if (!versions)
        findings.push_back({"Sound libraries", "", "reinstall OpenAL Soft, FluidSynth and JACK"});
    for (const auto& pair : nlohmann::json::parse(versions.value_or("[]"))) {
        const std::string version = pair[1];
        findings.push_back({pair[0], version, version.empty() ? "reinstall it" : ""});
    }
}

/// Opens a display, and returns a line about it and a line about its OpenGL.
std::string openDisplay()
{
    qInstallMessageHandler(endIfFatal);
    requestOpenGL();
    std::string name = "velmora";
    char* words[] = {name.data(), nullptr};
    int count = 1;
    const QGuiApplication application(count, words);
    std::string text = QGuiApplication::platformName().toStdString();
    for (const QScreen* screen : QGuiApplication::screens())
        text += fmt::format(", {} × {} at factor {:g}", screen->geometry().width(),
                            screen->geometry().height(), screen->devicePixelRatio());
    text += '\n';
    QOffscreenSurface surface;
    surface.create();
    QOpenGLContext context;
    if (!context.create() || !context.makeCurrent(&surface))
        return text;
    const auto describe = [&](unsigned what) {
        return reinterpret_cast<const char*>(context.functions()->glGetString(what));
    };
    return text + fmt::format("{}, {}", describe(GL_RENDERER), describe(GL_VERSION));
}

void addDisplay(std::vector<Finding>& findings)
{
    std::string text;
    const auto isSet = [](const char* variable) { return std::getenv(variable) != nullptr; };
    if (isSet("DISPLAY") || isSet("WAYLAND_DISPLAY") || isSet("QT_QPA_PLATFORM"))
        text = runInChild(openDisplay, kLongestSearch).value_or("");
    const std::size_t end = std::min(text.find('\n'), text.size());
    const std::string openGL = text.substr(std::min(end + 1, text.size()));
    findings.push_back({"Display", text.substr(0, end),
                        text.empty() ? "start the windows from a desktop session; the commands "
                                       "work without a display"
                                     : ""});
    findings.push_back({"OpenGL", openGL,
                        openGL.empty() ? "it needs a display and a graphics driver, on Debian "
                                         "from the package libgl1-mesa-dri"
                                       : ""});
}

/// Returns a limit of this process as `show` writes it.
template <class Resource, class Show> std::string limit(Resource resource, const Show& show)
{
    rlimit value{};
    getrlimit(resource, &value);
    return value.rlim_cur == RLIM_INFINITY ? "unlimited" : show(value.rlim_cur);
}

Finding findRealTime()
{
    const auto isAllowed = runInChild(
        [] {
            const sched_param parameter{.sched_priority = 1};
            return std::string(sched_setscheduler(0, SCHED_FIFO, &parameter) == 0 ? "yes" : "");
        },
        kLongestSearch);
    const std::string limits =
        fmt::format("priority limit {}, locked memory {}",
                    limit(RLIMIT_RTPRIO, [](rlim_t value) { return std::to_string(value); }),
                    limit(RLIMIT_MEMLOCK, [](rlim_t value) { return sizeString(value); }));
    if (isAllowed == "yes")
        return {"Real-time priority", "allowed, " + limits, ""};
    return {"Real-time priority", "not allowed, " + limits,
            "grant it to the group audio, on Debian with dpkg-reconfigure -p high jackd2, join the "
            "group, and log in again; or use PipeWire with rtkit"};
}

Finding findSessionBus()
{
    const auto name = runInChild(
        [] {
            const QDBusConnection bus = QDBusConnection::sessionBus();
            return bus.isConnected() ? std::string("connected") : std::string();
        },
        kLongestSearch);
    if (name && !name->empty())
        return {"D-Bus session", *name, ""};
    return {"D-Bus session", "",
            "start from a desktop session or with dbus-run-session, so that files open in the "
            "running program and the display stays awake"};
}

Finding findPreferences()
{
    const std::string path = settingsFile().string();
    if (arePreferencesWritable())
        return {"Preferences", path, ""};
    return {"Preferences", path + ", not writable",
            "make the file and its folder writable, or set XDG_CONFIG_HOME to another folder"};
}

} // namespace

std::vector<Finding> systemFindings()
{
    std::vector<Finding> findings = {{"Velmora", version(), ""}, {"Qt", qVersion(), ""}};
    addLibraries(findings);
    findings.push_back(
        {"System",
         fmt::format("{}, {} {}, {}", QSysInfo::prettyProductName().toStdString(),
                     QSysInfo::kernelType().toStdString(), QSysInfo::kernelVersion().toStdString(),
                     QSysInfo::currentCpuArchitecture().toStdString()),
         ""});
    const auto pages = static_cast<std::uint64_t>(sysconf(_SC_PHYS_PAGES));
    const auto pageSize = static_cast<std::uint64_t>(sysconf(_SC_PAGESIZE));
    findings.push_back({"Processors", std::to_string(std::thread::hardware_concurrency()), ""});
    findings.push_back({"Memory", sizeString(pages * pageSize), ""});
    findings.push_back(findRealTime());
    addDisplay(findings);
    findings.push_back(findSessionBus());
    findings.push_back(findPreferences());
    return findings;
}

} // namespace velmora
