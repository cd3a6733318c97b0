#include "desktop/widgets/windowPlace.h"

#include "preferences/settings.h"

#include <QApplication>
#include <QEvent>
#include <QScreen>
#include <QTimer>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace velmora {

namespace {

class PlaceKeeper : public QObject {
public:
    PlaceKeeper(QWidget& window, std::string key, bool hasPlace)
        : QObject(&window), window_(window), key_(std::move(key)), hasPlace_(hasPlace)
    {
        window.installEventFilter(this);
        connect(qApp, &QApplication::aboutToQuit, this, &PlaceKeeper::save);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const QWidget* active = QApplication::activeWindow();
        if (event->type() == QEvent::Show && !std::exchange(hasPlace_, true) && active != nullptr &&
            active != &window_ && window_.isWindow())
            // The window may get its contents, and so its size, while it is shown.
            QTimer::singleShot(
                0, this, [this, middle = active->frameGeometry().center()] { centreOn(middle); });
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

    void centreOn(QPoint middle)
    {
        const QRect screen = window_.screen()->availableGeometry();
        QRect place = window_.frameGeometry();
        place.moveCenter(middle);
        place.moveBottomRight(
            {std::min(place.right(), screen.right()), std::min(place.bottom(), screen.bottom())});
        window_.move(std::max(place.left(), screen.left()), std::max(place.top(), screen.top()));
    }

    QWidget& window_;
    std::string key_;
    bool hasPlace_;
};

} // namespace

QSize roomFor(const QWidget& window)
{
    return window.screen()->availableSize() * 0.9;
}

void rememberPlace(QWidget& window, const std::string& name)
{
    const std::string key = "windows/" + name;
    const bool isRestored = window.restoreGeometry(preference(key).toByteArray());
    const QString keeper = QString::fromStdString(key);
    if (window.findChild<QObject*>(keeper, Qt::FindDirectChildrenOnly) == nullptr)
        (new PlaceKeeper(window, key, isRestored))->setObjectName(keeper); // owned by the window
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
