#pragma once

#include <QObject>
#include <QTimer>

#include <string>

namespace velmora {

class AppDelegate;

/// A chord that shows a newcomer how a tuning sounds.
class ExampleChord : public QObject {
public:
    explicit ExampleChord(AppDelegate& application);

    /// Selects the tuning of that name and sounds the chord in it for two seconds on the current
    /// instrument, as if its keys were clicked. A chord that still sounds ends first. Does nothing
    /// if there is no such tuning.
    void play(const std::string& tuning);

private:
    void stop();

    AppDelegate& application_;
    QTimer end_;
};

} // namespace velmora
