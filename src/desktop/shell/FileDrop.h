#pragma once

#include <QObject>
#include <QStringList>

class QWidget;

namespace velmora {

/// Accepts files that are dropped on windows.
class FileDrop : public QObject {
    Q_OBJECT

public:
    /// Makes a window accept files.
    void watch(QWidget& window);

signals:
    /// One or more local files were dropped. The paths are those of `textOf`.
    void dropped(const QStringList& paths);

private:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace velmora
