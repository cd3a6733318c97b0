#pragma once

#include "midi/LearnedControls.h"

#include <QObject>
#include <QString>

#include <functional>
#include <vector>

class QMenu;
class QWidget;

namespace velmora {

class AppDelegate;

/// An action of a widget that a control of a MIDI device can learn, and its name for the user.
struct Learnable {
    LearnedAction action;
    QString name; ///< If empty, the accessible name of the widget.
};

/// Gives a widget a context menu with which the user teaches its actions to controls of the MIDI
/// devices, and adds the learned controls to its tooltip. Makes the widget focusable by Tab, so
/// that the menu key opens the menu too. Owned by the widget.
class LearnMenu : public QObject {
    Q_OBJECT

public:
    /// `addFirst` adds to the menu what stands above these actions.
    LearnMenu(QWidget& widget, AppDelegate& application, std::vector<Learnable> learnables,
              std::function<void(QMenu&)> addFirst = {});

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void addTo(QMenu& menu, const Learnable& learnable);
    void learn(const Learnable& learnable);
    QString nameOf(const Learnable& learnable) const;
    QString toolTip() const;

    QWidget& widget_;
    AppDelegate& application_;
    std::vector<Learnable> learnables_;
    std::function<void(QMenu&)> addFirst_;
};

} // namespace velmora
