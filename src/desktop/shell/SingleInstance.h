#pragma once

#include <QObject>
#include <QStringList>

namespace velmora {

/// Ensures that only one instance runs in a session, because two would sound every key twice. Later
/// starts hand their files to the first instance over the D-Bus session bus. Without a bus, several
/// instances can run.
class SingleInstance : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.velmora.Velmora")

public:
    /// Hands absolute paths, as `textOf` returns them, to the running instance. Returns false if
    /// there is none or it does not answer; this process must then open the files itself.
    bool handOver(const QStringList& paths);

public slots:
    /// Called over the bus by a later start. The names are those of `escapePath`.
    Q_SCRIPTABLE void open(const QStringList& names);

signals:
    /// The paths are those of `textOf`.
    void opened(const QStringList& paths);
};

} // namespace velmora
