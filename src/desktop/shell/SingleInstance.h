#pragma once

#include <QObject>
#include <QStringList>

namespace velmora {

/// Sees that a session has one running program, to which further starts hand their files over the
/// session bus: two would sound every key twice. Without a bus each start stands for itself.
class SingleInstance : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.velmora.Velmora")

public:
    /// Hands absolute paths to the program that runs already. False when there is none: this is
    /// the one from now on.
    bool handOver(const QStringList& paths);

public slots:
    /// What a further start calls over the bus.
    Q_SCRIPTABLE void open(const QStringList& paths) { emit opened(paths); }

signals:
    void opened(const QStringList& paths);
};

} // namespace velmora
