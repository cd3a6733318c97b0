#include "app/TuningCorrector.h"

#include "app/AppDelegate.h"

#include <algorithm>

namespace velmora {

TuningCorrector::TuningCorrector(AppDelegate& application) : application_(application)
{
    connect(this, &TuningCorrector::measured, this, &TuningCorrector::take, Qt::QueuedConnection);
    connect(&application, &AppDelegate::programSelected, this, &TuningCorrector::update);
    connect(&application, &AppDelegate::voicesUsed, this, &TuningCorrector::update);
    for (const auto signal : {&AppDelegate::instrumentChanged, &AppDelegate::bankLoaded})
        connect(&application, signal, this, [this] {
            done_.clear(); // what plays now may be another synthesizer
            update();
        });
    connect(&application.playing(), &PlayingOptions::changed, this, &TuningCorrector::update);
}

TuningCorrector::~TuningCorrector()
{
    isCancelled_ = true; // the destructor of the future waits
}

std::vector<PitchedProgram> TuningCorrector::played() const
{
    std::vector<PitchedProgram> programs;
    for (const auto& document : application_.instruments()) {
        if (!application_.isCurrent(*document))
            continue;
        application_.player().with([&](const Instrument& instrument, const Temperament&) {
            programs = pitchedPrograms(instrument, document->isFromFile() ? document->path()
                                                                          : application_.bank());
        });
    }
    return programs;
}

void TuningCorrector::update()
{
    const auto programs = played();
    const auto isIn = [](const auto& list, const PitchedProgram& program) {
        return std::ranges::find(list, program) != list.end();
    };
    if (!application_.playing().correctsTuning()) {
        for (const PitchedProgram& program : programs)
            correct(program, {});
        done_.clear();
        return;
    }
    if (measuring_.valid()) {
        if (!isIn(programs, program_))
            isCancelled_ = true; // `take` goes on with another one
        return;
    }
    const auto next = std::ranges::find_if(
        programs, [&](const PitchedProgram& program) { return !isIn(done_, program); });
    if (next == programs.end())
        return;
    program_ = *next;
    isCancelled_ = false;
    measuring_ = std::async(std::launch::async, [this] {
        auto corrections = correctionsFor(program_.program, [this] { return isCancelled_.load(); });
        emit measured();
        return corrections;
    });
}

void TuningCorrector::take()
{
    if (!measuring_.valid())
        return;
    const auto corrections = measuring_.get();
    const auto programs = played();
    if (!isCancelled_ && std::ranges::find(programs, program_) != programs.end()) {
        done_.push_back(program_);
        if (corrections && application_.playing().correctsTuning())
            correct(program_, *corrections);
    }
    update();
}

void TuningCorrector::correct(const PitchedProgram& program, const KeyCorrections& corrections)
{
    application_.player().with([&](Instrument& instrument, const Temperament&) {
        dynamic_cast<MIDIInstrument&>(instrument).setCorrections(program.position, corrections);
    });
}

} // namespace velmora
