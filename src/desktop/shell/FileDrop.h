#pragma once

#include <QObject>
#include <QStringList>

class QWidget;

namespace velmora {

/// Takes the files that are dropped on windows.
class FileDrop : public QObject {
    Q_OBJECT

public:
    /// Watches a window from now on.
    void watch(QWidget& window);

signals:
    /// Local files were dropped together.
    void dropped(const QStringList& paths);

private:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace velmora
