#pragma once

#include <QWidget>

class QLabel;

namespace velmora {

class AppDelegate;

/// Shows the current instrument and tuning in type that can be read from a distance.
class StageView : public QWidget {
    Q_OBJECT

public:
    explicit StageView(AppDelegate& application);

private:
    void showSound();

    AppDelegate& application_;
    QLabel *instrument_, *tuning_;
};

} // namespace velmora
