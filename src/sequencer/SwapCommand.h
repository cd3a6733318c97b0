#pragma once

#include <QUndoCommand>

#include <functional>
#include <utility>

namespace velmora {

/// An entry of the undo history that exchanges a value of a document with another one: the new one
/// for the old one when it is done, and back when it is undone.
class SwapCommand : public QUndoCommand {
public:
    /// `swap` exchanges the document's value with one that it keeps. What it refers to must outlive
    /// the history.
    SwapCommand(const QString& text, std::function<void()> swap)
        : QUndoCommand(text), swap_(std::move(swap))
    {
    }

    void redo() override { swap_(); }
    void undo() override { swap_(); }

private:
    std::function<void()> swap_;
};

} // namespace velmora
