#pragma once

#include "sound/LoadState.h"

#include <QAbstractButton>

class QMenu;

namespace velmora {

class AppDelegate;

/// A knob of a console that draws a stop or a coupler. A click, Space or Enter draws it or pushes
/// it in; the context menu of a stop has its volume. A drawn knob is marked, framed and coloured.
class Drawknob : public QAbstractButton {
    Q_OBJECT

public:
    /// What the knob draws.
    enum class Kind { Stop, Coupler };

    /// Controls the stop or coupler with that number.
    Drawknob(AppDelegate& application, Kind kind, std::size_t number);

    /// Shows a stop or a coupler: its name, its state, and its volume from 0 to 1.
    void showKnob(const QString& name, bool isDrawn, float volume);

    /// Shows another state.
    void showState(bool isDrawn, float volume);

    /// Shows whether the stop is in memory. One that is not is grey; it can be drawn nevertheless.
    void showLoadState(LoadState state);

    const QString& name() const { return name_; }

    QSize sizeHint() const override;

signals:
    /// The user wants the volume to be that, from 0 to 1.
    void volumeChosen(float volume);

    /// The keyboard focus has come.
    void entered();

    /// The user wants to go on to another knob, in steps of columns and rows.
    void stepped(int columns, int rows);

protected:
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void addVolume(QMenu& menu);
    void nameState();

    Kind kind_;
    QString name_;
    int percent_ = 0;
    LoadState loadState_ = LoadState::Loaded;
};

} // namespace velmora
