#pragma once

#include <QObject>

namespace velmora {

/// Keeps every dialog within its screen. Those of Qt for files are higher than a screen of 1280 by
/// 800 pixels at a scale of 2.
class DialogFitter : public QObject {
    Q_OBJECT

public:
    /// Watches the whole program for dialogs that open.
    DialogFitter();

private:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace velmora
