#pragma once

#include "app/TuningMoment.h"

#include <QObject>
#include <QTimer>

namespace velmora {

class AppDelegate;

/// Reads how the current temperament is tuned and what sounds, 30 times a second while anybody
/// looks.
class TuningReader : public QObject {
    Q_OBJECT

public:
    /// The application must outlive the reader.
    explicit TuningReader(AppDelegate& application, QObject* parent = nullptr);

    /// Reads whenever a widget is visible.
    void serve(QWidget& widget);

    /// Reads all the time, or no longer.
    void setReading(bool on);

    const TuningMoment& moment() const { return moment_; }

signals:
    /// The moment was read; it may be the same as before.
    void read();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void look();
    void count(int change);

    AppDelegate& application_;
    TuningMoment moment_;
    QTimer timer_;
    int lookers_ = 0;
    bool isReading_ = false;
};

} // namespace velmora
