#pragma once

#include <QFrame>

class QListWidget;

namespace velmora {

class Commands;
class SearchField;

/// A small window without a frame in which the user finds a command by its name, its group or its
/// shortcut and performs it with Enter. Esc and a click elsewhere close it.
class CommandPalette : public QFrame {
    Q_OBJECT

public:
    explicit CommandPalette(const Commands& commands, QWidget* parent);

    /// Opens the palette in the upper part of its parent's window, with all commands.
    void open();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fill();
    void filter();
    void moveBy(int rows);
    void perform();

    const Commands& commands_;
    SearchField* search_;
    QListWidget* list_;
};

} // namespace velmora
