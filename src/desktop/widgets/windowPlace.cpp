#include "desktop/widgets/windowPlace.h"

#include "preferences/settings.h"

#include <QApplication>
#include <QEvent>
#include <QScreen>
#include <QWidget>

namespace velmora {

namespace {

class PlaceKeeper : public QObject {
public:
    PlaceKeeper(QWidget& window, std::string key)
        : QObject(&window), window_(window), key_(std::move(key))
    {
        window.installEventFilter(this);
        connect(qApp, &QApplication::aboutToQuit, this, &PlaceKeeper::save);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Hide)
            save();
        return QObject::eventFilter(watched, event);
    }

private:
    void save()
    {
        // A window that has never been shown has no position yet.
        if (window_.isWindow() && window_.testAttribute(Qt::WA_WState_Created))
            setPreference(key_, window_.saveGeometry());
    }

    QWidget& window_;
    std::string key_;
};

} // namespace

QSize roomFor(const QWidget& window)
{
    return window.screen()->availableSize() * 0.9;
}

void rememberPlace(QWidget& window, const std::string& name)
{
    const std::string key = "windows/" + name;
    window.restoreGeometry(preference(key).toByteArray());
    const QString keeper = QString::fromStdString(key);
    if (window.findChild<QObject*>(keeper, Qt::FindDirectChildrenOnly) == nullptr)
        (new PlaceKeeper(window, key))->setObjectName(keeper); // owned by the window
}

void reopen(QWidget& window, const std::string& name)
{
    const std::string key = "windows/" + name + "Open";
    QObject::connect(qApp, &QApplication::aboutToQuit, &window,
                     [&window, key] { setPreference(key, window.isVisible()); });
    if (preference(key).toBool())
        window.show();
}

void present(QWidget& window)
{
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.activateWindow();
}

} // namespace velmora
