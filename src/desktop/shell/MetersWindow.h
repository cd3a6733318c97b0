#pragma once

#include "app/Meters.h"

#include <QTimer>
#include <QWidget>

#include <optional>

class QFormLayout;

namespace velmora {

/// Shows what the program measures about its own playing. While it is closed, nothing is measured.
class MetersWindow : public QWidget {
    Q_OBJECT

public:
    explicit MetersWindow(AppDelegate& application);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void update();

    AppDelegate& application_;
    std::optional<Meters> meters_; ///< Present while the window is open.
    QFormLayout* lines_;
    QTimer timer_;
};

} // namespace velmora
