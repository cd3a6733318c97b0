#include "sequencer/RecoveryKeeper.h"

#include "base/Log.h"
#include "sequencer/SequenceDocument.h"

#include <exception>
#include <utility>

RecoveryKeeper::RecoveryKeeper(SequenceDocument& document, RecoveryFile file,
                               std::chrono::milliseconds interval)
    : document_(document), file_(std::move(file))
{
    timer_.setSingleShot(true);
    timer_.setInterval(interval);
    writer_.setMaxThreadCount(1);
    connect(&timer_, &QTimer::timeout, this, &RecoveryKeeper::write);
    connect(&document.undoStack(), &QUndoStack::indexChanged, this, &RecoveryKeeper::edited);
    connect(&document.undoStack(), &QUndoStack::cleanChanged, this, &RecoveryKeeper::edited);
    connect(&document, &SequenceDocument::modeChanged, this, &RecoveryKeeper::edited);
}

RecoveryKeeper::~RecoveryKeeper()
{
    writer_.waitForDone();
    if (!isLeft_)
        file_.discard();
}

void RecoveryKeeper::leave()
{
    writer_.waitForDone();
    isLeft_ = document_.isModified();
    if (isLeft_)
        keep(document_.snapshot());
}

void RecoveryKeeper::edited()
{
    if (!document_.isModified() && document_.mode() != SequenceDocument::Mode::Recording) {
        timer_.stop();
        writer_.start([this] { file_.discard(); });
    } else if (!timer_.isActive()) {
        timer_.start();
    }
}

void RecoveryKeeper::write()
{
    // A recording goes on by itself, and a disk that is too slow is given time.
    if (document_.mode() == SequenceDocument::Mode::Recording || writer_.activeThreadCount() > 0)
        timer_.start();
    if (!document_.isModified() || writer_.activeThreadCount() > 0)
        return;
    writer_.start([this, sequence = document_.snapshot()] { keep(sequence); });
}

void RecoveryKeeper::keep(const UnsavedSequence& sequence)
{
    try {
        file_.write(sequence);
        failed_ = false;
    } catch (const std::exception& error) {
        if (!std::exchange(failed_, true))
            logger("sequencer")
                .warn("What is not saved is not kept against a crash: {}", error.what());
    }
}
