#include "app/TuningCorrector.h"

#include "app/AppDelegate.h"

namespace velmora {

TuningCorrector::TuningCorrector(AppDelegate& application) : application_(application)
{
    connect(this, &TuningCorrector::measured, this, &TuningCorrector::take, Qt::QueuedConnection);
    connect(&application, &AppDelegate::instrumentChanged, this, &TuningCorrector::update);
    connect(&application, &AppDelegate::programSelected, this, &TuningCorrector::update);
    connect(&application, &AppDelegate::bankLoaded, this, &TuningCorrector::update);
    connect(&application.playing(), &PlayingOptions::changed, this, &TuningCorrector::update);
}

TuningCorrector::~TuningCorrector()
{
    isCancelled_ = true; // the destructor of the future waits
}

std::optional<BankProgram> TuningCorrector::selected() const
{
    for (const auto& document : application_.instruments()) {
        if (!application_.isCurrent(*document))
            continue;
        std::optional<BankProgram> program;
        application_.player().with([&](const Instrument& instrument, const Temperament&) {
            program = pitchedProgram(instrument, document->isFromFile() ? document->path()
                                                                        : application_.bank());
        });
        return program;
    }
    return std::nullopt;
}

void TuningCorrector::update()
{
    const auto wanted = selected();
    if (!wanted)
        return;
    if (!application_.playing().correctsTuning()) {
        correct({});
        return;
    }
    if (measuring_.valid()) {
        if (program_ != *wanted)
            isCancelled_ = true; // `take` goes on with the other one
        return;
    }
    program_ = *wanted;
    isCancelled_ = false;
    measuring_ = std::async(std::launch::async, [this] {
        auto corrections = correctionsFor(program_, [this] { return isCancelled_.load(); });
        emit measured();
        return corrections;
    });
}

void TuningCorrector::take()
{
    if (!measuring_.valid())
        return;
    const auto corrections = measuring_.get();
    if (isCancelled_ || selected() != program_)
        update();
    else if (corrections && application_.playing().correctsTuning())
        correct(*corrections);
}

void TuningCorrector::correct(const KeyCorrections& corrections)
{
    application_.player().with([&](Instrument& instrument, const Temperament&) {
        dynamic_cast<MIDIInstrument&>(instrument).setCorrections(instrument.program(), corrections);
    });
}

} // namespace velmora
