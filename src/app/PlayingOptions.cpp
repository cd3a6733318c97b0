#include "app/PlayingOptions.h"

#include "preferences/Preferences.h"

#include <algorithm>

namespace velmora {

namespace {

constexpr double kMillisecondsOfSecond = 1000.0;

} // namespace

PlayingOptions::PlayingOptions()
{
    read();
}

void PlayingOptions::read()
{
    settings_.isPlain = isAlwaysPlain_ || getPrefBool("PlainReading");
    correctsTuning_ = getPrefBool("CorrectTuning");
    settings_.velocityCurve = static_cast<VelocityCurve>(getPrefInt("VelocityCurve"));
    settings_.transposition = getPrefInt("Transposition");
    settings_.bendRange = getPrefInt("BendRange");
    glide_ = {getPrefInt("GlideTime") / kMillisecondsOfSecond, getPrefBool("GlideSounding")};
    adaptive_ = {
        getPrefBool("CorrectSpelling") ? getPrefInt("CorrectionTime") / kMillisecondsOfSecond : 0.0,
        static_cast<Drift>(getPrefInt("Drift"))};
    emit changed();
}

void PlayingOptions::usePlainReading()
{
    isAlwaysPlain_ = true;
    read();
}

void PlayingOptions::setVelocityCurve(VelocityCurve curve)
{
    setPrefInt("VelocityCurve", static_cast<int>(curve));
    read();
}

void PlayingOptions::setTransposition(int semitones)
{
    setPrefInt("Transposition", std::clamp(semitones, -kMaxTransposition, kMaxTransposition));
    read();
}

} // namespace velmora
