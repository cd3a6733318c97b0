#include "desktop/windowPlace.h"

#include <QApplication>
#include <QEvent>
#include <QSettings>
#include <QWidget>

namespace {

QString placeKey(const QString& name)
{
    return "windows/" + name;
}

QString openKey(const QString& name)
{
    return placeKey(name) + "Open";
}

class PlaceKeeper : public QObject {
public:
    PlaceKeeper(QWidget& window, QString name)
        : QObject(&window), window_(window), name_(std::move(name))
    {
        window.installEventFilter(this);
        connect(qApp, &QApplication::aboutToQuit, this, [this] {
            save();
            QSettings("velmora", "velmora").setValue(openKey(name_), window_.isVisible());
        });
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
        // A window that was never shown has no place yet.
        if (window_.testAttribute(Qt::WA_WState_Created))
            QSettings("velmora", "velmora").setValue(placeKey(name_), window_.saveGeometry());
    }

    QWidget& window_;
    QString name_;
};

} // namespace

void rememberPlace(QWidget& window, const QString& name)
{
    window.restoreGeometry(QSettings("velmora", "velmora").value(placeKey(name)).toByteArray());
    new PlaceKeeper(window, name); // goes with the window
}

bool wasOpen(const QString& name)
{
    return QSettings("velmora", "velmora").value(openKey(name)).toBool();
}
