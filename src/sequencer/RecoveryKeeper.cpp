#include "sequencer/RecoveryKeeper.h"

#include "base/Log.h"
#include "sequencer/SequenceDocument.h"

#include <exception>
#include <utility>

namespace velmora {

RecoveryKeeper::RecoveryKeeper(SequenceDocument& document, RecoveryFile file,
                               std::chrono::milliseconds interval)
    : document_(document), file_(std::move(file))
{
    timer_.setSingleShot(true);
    timer_.setInterval(interval);
    connect(&timer_, &QTimer::timeout, this, &RecoveryKeeper::write);
    connect(&document.undoStack(), &QUndoStack::indexChanged, this, &RecoveryKeeper::edited);
    connect(&document.undoStack(), &QUndoStack::cleanChanged, this, &RecoveryKeeper::edited);
    connect(&document.transport(), &Transport::modeChanged, this, &RecoveryKeeper::edited);
}

RecoveryKeeper::~RecoveryKeeper()
{
    waitForWriter();
    if (!keepsFile_)
        file_.discard();
}

void RecoveryKeeper::keepForNextStart()
{
    waitForWriter();
    keepsFile_ = document_.isModified();
    if (keepsFile_)
        keep(document_.snapshot());
}

void RecoveryKeeper::edited()
{
    if (!document_.isModified() && document_.transport().mode() != Transport::Mode::Recording) {
        timer_.stop();
        waitForWriter();
        file_.discard();
    } else if (!timer_.isActive()) {
        timer_.start();
    }
}

void RecoveryKeeper::write()
{
    // A recording adds notes without edits, and a slow disk needs more time.
    if (document_.transport().mode() == Transport::Mode::Recording || isBusy())
        timer_.start();
    if (!document_.isModified() || isBusy())
        return;
    writer_ =
        std::async(std::launch::async, [this, sequence = document_.snapshot()] { keep(sequence); });
}

void RecoveryKeeper::keep(const UnsavedSequence& sequence)
{
    try {
        file_.write(sequence);
        failed_ = false;
    } catch (const std::exception& error) {
        if (std::exchange(failed_, true))
            return;
        logger("sequencer")
            .warn("Unsaved changes are not protected against a crash: {}", error.what());
        emit failed(QString::fromUtf8(error.what()));
    }
}

bool RecoveryKeeper::isBusy() const
{
    return writer_.valid() &&
           writer_.wait_for(std::chrono::seconds(0)) != std::future_status::ready;
}

void RecoveryKeeper::waitForWriter()
{
    if (writer_.valid())
        writer_.wait();
}

} // namespace velmora
