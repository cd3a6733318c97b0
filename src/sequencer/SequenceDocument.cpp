#include "sequencer/SequenceDocument.h"

#include "base/File.h"
#include "base/FormatError.h"
#include "base/Log.h"
#include "preferences/Preferences.h"
#include "sequencer/SequenceFile.h"
#include "sound/Instrument.h"
#include "tuning/Temperament.h"

#include <chrono>
#include <new>

namespace {

/// Steps in a second for each beat a minute of the tempo.
constexpr double kStepsPerTempoSecond = 0.125;

/// The state of a key that the sequence plays.
constexpr int kPlayed = 2;

} // namespace

double getTime()
{
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration<double>(now).count();
}

SequenceDocument::SequenceDocument(SequenceHost& host, std::function<double()> clock)
    : host_(host), clock_(std::move(clock)), dTime_(clock_())
{
    for (auto& state : noteStates)
        state = 0;
}

void SequenceDocument::readFromURL(const std::filesystem::path& path)
{
    const std::string name = path.filename().string();
    errorString_.clear();
    sequence_.select();
    sequence_.erase();
    mx_ = 0.0;
    isImported_ = false;
    try {
        Sequence read;
        const SequenceFile file =
            readSequence(readStandardMidiFile(readFile(path)), getPrefInt("KeyRangeLo"),
                         getPrefInt("KeyRangeHi"), read);
        sequence_ = std::move(read);
        mx_ = file.mx;
        isImported_ = file.isImported;
    } catch (const FormatError& error) {
        errorString_ = error.inFile(name);
    } catch (const std::bad_alloc&) {
        errorString_ = name + ": is too large to be read into memory";
    }
    if (!errorString_.empty())
        logger("sequencer").info("{}", errorString_);
}

void SequenceDocument::play()
{
    if (mode_ == Mode::Playing) {
        mode_ = Mode::Stopped;
        stop();
        return;
    }
    mode_ = Mode::Playing;
    if (intervalSelected() && (offset_ >= selectionEnd_ || offset_ < selectionStart_))
        doScroll(selectionStart_);
}

void SequenceDocument::loop()
{
    const double now = clock_();
    if (mode_ == Mode::Playing)
        doPlay(now - dTime_);
    dTime_ = now;
}

void SequenceDocument::doPlay(double seconds)
{
    double next = offset_ + tempo_ * seconds * kStepsPerTempoSecond;
    const bool atEnd = (intervalSelected() && selectionEnd_ < next) || mx_ < next;

    for (std::size_t i = 0; i < sequence_.notes().size(); ++i) {
        Note& note = sequence_.at(i);
        if (atEnd) {
            silence(note);
            continue;
        }
        if (offset_ <= note.start && note.start < next)
            start(note);
        const double end = note.start + note.length;
        if (offset_ < end && end <= next)
            silence(note);
    }

    if (atEnd) {
        next = intervalSelected() ? selectionStart_ : 0.0;
        if (!loop_)
            play();
    }
    doScroll(next);
}

void SequenceDocument::start(Note& note)
{
    currentNotes_[note.key] = kPlayed;
    note.playing = note.active = true;
    note_ = note.key;
    const std::lock_guard lock(host_.soundLock());
    if (Instrument* instrument = host_.getInstrument()) {
        host_.getTemperament()->setup(*instrument, static_cast<unsigned char>(note.key),
                                      note.velocity);
        instrument->play(static_cast<int>(note.key), note.velocity);
    }
}

void SequenceDocument::silence(Note& note)
{
    currentNotes_[note.key] = 0;
    note.playing = note.active = false;
    stopOnInstrument(note);
}

void SequenceDocument::stopOnInstrument(const Note& note)
{
    const std::lock_guard lock(host_.soundLock());
    if (Instrument* instrument = host_.getInstrument())
        instrument->stop(static_cast<int>(note.key));
}

void SequenceDocument::stop()
{
    for (std::size_t i = 0; i < sequence_.notes().size(); ++i) {
        Note& note = sequence_.at(i);
        if (note.playing)
            stopOnInstrument(note);
        note.playing = false;
    }
}

void SequenceDocument::doScroll(double step)
{
    offset_ = step;
}

void SequenceDocument::selectInterval(double start, double end)
{
    selectionStart_ = start;
    selectionEnd_ = end;
}
