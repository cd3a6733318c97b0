#include "sequencer/SequenceDocument.h"

#include "base/File.h"
#include "base/FormatError.h"
#include "base/Log.h"
#include "preferences/Preferences.h"
#include "sequencer/LiveKeys.h"
#include "sequencer/SequenceFile.h"
#include "sequencer/SequenceTime.h"

#include <algorithm>
#include <cmath>
#include <new>
#include <utility>

namespace velmora {

namespace {

/// A recording looks at the keys twice in a tick of the clock: so a note is as long, within a tick,
/// as its key was held.
constexpr double kRecordingTick = kTick.count() / 2;

/// What is longer ago than a second is caught up with in longer ones: on a machine that is too slow
/// it would come to ever more.
constexpr double kMostTicks = 2048.0;

constexpr unsigned kTicksPerFrame = 16;

/// How far a recording runs on after the last key, in steps.
constexpr double kRecordingRoom = 8.0;

} // namespace

SequenceDocument::SequenceDocument(SequenceHost& host, std::function<double()> clock)
    : host_(host), clock_(std::move(clock)), playback_(host, sequence_), dTime_(clock_())
{
    host_.liveKeys().clear();
}

void SequenceDocument::readFromURL(const std::filesystem::path& path)
{
    const std::string name = path.filename().string();
    errorString_.clear();
    path_.clear();
    stop();
    undoStack_.clear();
    taken_.clear();
    isImported_ = false;
    double extent = 0.0;
    const Edit edit(*this, {});
    *edit = {};
    try {
        Sequence read;
        const SequenceFile file =
            readSequence(readStandardMidiFile(readFile(path)), getPrefInt("KeyRangeLo"),
                         getPrefInt("KeyRangeHi"), read);
        *edit = std::move(read);
        extent = file.extent;
        isImported_ = file.isImported;
        path_ = path;
    } catch (const FormatError& error) {
        errorString_ = error.inFile(name);
    } catch (const std::bad_alloc&) {
        errorString_ = name + ": is too large to be read into memory";
    }
    if (!errorString_.empty())
        logger("sequencer").info("{}", errorString_);
    setExtent(extent);
    emit frame();
}

void SequenceDocument::play()
{
    if (mode_ == Mode::Playing) {
        setMode(Mode::Stopped);
        stop();
    } else if (mode_ == Mode::Stopped) {
        dTime_ = clock_();
        setMode(Mode::Playing);
        if (intervalSelected() && (offset_ >= selectionEnd_ || offset_ < selectionStart_))
            doScroll(selectionStart_);
    }
    emit frame();
}

void SequenceDocument::record()
{
    if (mode_ == Mode::Recording) {
        loop(); // what has come since the last tick
        setMode(Mode::Stopped);
        edit()->sort();
        registerTake();
    } else if (mode_ == Mode::Stopped) {
        dTime_ = clock_();
        scrollMax_ = offset_;
        heldKeys_.reset();
        setMode(Mode::Recording);
    }
    emit frame();
}

void SequenceDocument::setMode(Mode mode)
{
    mode_ = mode;
    emit modeChanged();
}

void SequenceDocument::loop()
{
    // Before the time is asked for: so the position is behind nothing that has sounded.
    if (playback_.isPlanShort(clock_()))
        playback_.takeBack();
    const double now = clock_();
    if (mode_ == Mode::Playing)
        doPlay(now);
    if (mode_ == Mode::Recording)
        recordUntil(now);
    dTime_ = now;
    // The tick that ends the playing is the last for a while.
    if (frameCount_++ % kTicksPerFrame == 0 || mode_ == Mode::Stopped)
        emit frame();
}

double SequenceDocument::positionAt(double time) const
{
    return offset_ + stepsPerSecond(tempo_) * (time - dTime_);
}

double SequenceDocument::endOfPlaying() const
{
    return intervalSelected() ? std::min(selectionEnd_, extent_) : extent_;
}

void SequenceDocument::doPlay(double now)
{
    double next = positionAt(now);
    if (next <= endOfPlaying()) {
        if (const auto lastKey = playback_.playBetween(offset_, next))
            note_ = static_cast<int>(*lastKey);
    } else {
        playback_.silenceAll();
        next = intervalSelected() ? selectionStart_ : 0.0;
        if (!loop_)
            play();
    }
    doScroll(next);
    if (mode_ == Mode::Playing)
        playback_.planAhead(next, now, stepsPerSecond(tempo_), endOfPlaying());
}

/// Before anything changes that a plan rests on: catches up with what has sounded.
void SequenceDocument::settle()
{
    if (!playback_.takeBack())
        return;
    const double now = clock_();
    const double next = std::max(offset_, std::min(positionAt(now), endOfPlaying()));
    playback_.playBetween(offset_, next);
    offset_ = next;
    dTime_ = now;
}

void SequenceDocument::stop()
{
    settle();
    playback_.stop();
}

void SequenceDocument::recordUntil(double now)
{
    const double before = offset_;
    bool activity = false;
    // A tick that comes late makes up for those before it, so that each key is taken where the
    // position was when it arrived.
    const double tick = std::max(kRecordingTick, (now - dTime_) / kMostTicks);
    while (now - dTime_ > tick) {
        activity = doRecord(tick) || activity;
        dTime_ += tick;
    }
    activity = doRecord(now - dTime_) || activity;
    if (offset_ != before)
        emit scrolled(offset_ - kRoomBelowPosition);
    if (activity)
        emit sizeChanged();
}

bool SequenceDocument::doRecord(double seconds)
{
    bool activity = false;
    for (std::size_t key = 0; key < kKeys; ++key)
        activity = recordKey(key, dTime_ + seconds) || activity;
    if (activity)
        scrollMax_ = offset_ + kRecordingRoom;
    if (activity || (!snapToGrid_ && offset_ <= scrollMax_))
        offset_ += stepsPerSecond(tempo_) * seconds;
    extent_ = offset_ + kRoomBehindLastNote;
    return activity;
}

int SequenceDocument::takeKey(std::size_t key, double until)
{
    LiveKeys& keys = host_.liveKeys();
    const double pressed = keys.pressTime(key);
    const int state = pressed <= until ? keys.take(key) : 0;
    if (state == kPressed)
        return kPressed;
    if (state == kHeld || !(until < keys.releaseTime(key)))
        return state == kHeld ? kHeld : 0;
    // It has been released since then.
    if (heldKeys_[key])
        return kHeld;
    return dTime_ < pressed && pressed <= until ? kPressed : 0;
}

bool SequenceDocument::recordKey(std::size_t key, double until)
{
    const int state = takeKey(key, until);
    heldKeys_[key] = state != 0;
    if (state == kPressed) {
        Note note{.start = offset_,
                  .length = 1.0,
                  .oldLength = 1.0,
                  .velocity = host_.liveKeys().velocity(key),
                  .channel = channel_,
                  .key = static_cast<std::uint32_t>(key),
                  .oldStart = offset_,
                  .oldKey = static_cast<std::uint32_t>(key)};
        if (snapToGrid_)
            note.start = std::floor(note.start);
        playback_.sequenceChanged();
        taken_.emplace(sequence_.addNote(note).id, std::nullopt);
        return true;
    }
    if (state != kHeld)
        return false;

    const auto& notes = sequence_.notes();
    const auto last = std::find_if(notes.rbegin(), notes.rend(), [=, this](const Note& note) {
        return note.key == key && note.start <= offset_; // not one that is still to come
    });
    if (last != notes.rend()) {
        taken_.emplace(last->id, last->length);
        playback_.sequenceChanged();
        Note& held = sequence_.at(static_cast<std::size_t>(notes.rend() - last) - 1);
        held.length = offset_ - held.start;
        if (snapToGrid_)
            held.length = std::floor(held.length);
    }
    return true;
}

void SequenceDocument::doScroll(double step)
{
    offset_ = step;
    if (!intervalSelected())
        emit scrolled(offset_ - kRoomBelowPosition);
}

void SequenceDocument::setOffset(double step)
{
    settle();
    offset_ = step;
    emit changed();
}

void SequenceDocument::putPosition(double step)
{
    scrollMax_ = step;
    setOffset(step);
}

void SequenceDocument::selectInterval(double start, double end)
{
    settle();
    selectionStart_ = start;
    selectionEnd_ = end;
    emit changed();
}

void SequenceDocument::setExtent(double extent)
{
    if (std::exchange(extent_, extent) != extent)
        emit sizeChanged();
}

void SequenceDocument::measure()
{
    double extent = 0.0;
    for (const Note& note : sequence_.notes())
        extent = std::max(extent, note.start + note.length + kRoomBehindLastNote);
    setExtent(extent);
}

void SequenceDocument::setTempo(double tempo)
{
    settle();
    tempo_ = tempo;
    emit optionsChanged();
}

void SequenceDocument::setChannel(unsigned char channel)
{
    channel_ = channel;
    emit optionsChanged();
}

void SequenceDocument::setSnapToGrid(bool snap)
{
    snapToGrid_ = snap;
    emit optionsChanged();
}

void SequenceDocument::setLoop(bool loop)
{
    loop_ = loop;
    emit optionsChanged();
}

} // namespace velmora
