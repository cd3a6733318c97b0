#pragma once

#include <QWidget>

#include <cstddef>

class QCheckBox;
class QLabel;
class QSlider;

namespace velmora {

class AppDelegate;

/// A stop in a list: a switch with its name, a slider for its volume, and the volume in per cent.
/// Enter and Space on the name turn the stop on and off.
class StopRow : public QWidget {
    Q_OBJECT

public:
    /// Controls stop number `stop` of the current instrument.
    StopRow(AppDelegate& application, std::size_t stop);

    /// Shows another stop: its name and its volume, 0 to 1.
    void showStop(const QString& name, float volume);

    /// Shows another volume, 0 to 1.
    void showVolume(float volume);

    const QString& name() const { return name_; }

    /// Moves the keyboard focus to the name.
    void focusName();

    /// Lets Tab reach the row, or pass by it.
    void setReachable(bool isReachable);

signals:
    /// The keyboard focus is in the row now.
    void entered();

    /// The user wants to go `rows` rows down, or up if that is negative.
    void stepped(int rows);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void turn(bool isOn);
    void moveTo(int percent);
    void showPercent();
    void fitTexts();

    AppDelegate& application_;
    std::size_t stop_;
    QString name_;
    QCheckBox* switch_;
    QSlider* slider_;
    QLabel* percent_;
    int before_ = 0; ///< The volume in per cent to which turning the stop on returns.
};

} // namespace velmora
