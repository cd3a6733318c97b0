#pragma once

#include <QFrame>

#include <functional>
#include <utility>
#include <vector>

class QLabel;
class QListWidget;

namespace velmora {

class Commands;
class SearchField;

/// A small window without a frame in which the user finds a command by its name, its group or its
/// shortcut, or something to choose by its text, and performs it with Enter. Esc and a click
/// elsewhere close it.
class CommandPalette : public QFrame {
    Q_OBJECT

public:
    /// Something to choose that is not a command.
    struct Choice {
        QString text; ///< One line, or two.
        std::function<void()> choose;
    };

    explicit CommandPalette(const Commands& commands, QWidget* parent);

    /// Sets what else can be found. `choices` is called whenever the palette opens.
    void offer(std::function<std::vector<Choice>()> choices) { choices_ = std::move(choices); }

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
    std::function<std::vector<Choice>()> choices_;
    std::vector<std::function<void()>> performed_; ///< What each row does.
    SearchField* search_;
    QListWidget* list_;
    QLabel* nothing_; ///< In place of an empty list.
};

} // namespace velmora
