#include "sound/OrganInstrument.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace velmora {

namespace {

/// How much a closed swell takes away, in decibels.
constexpr float kClosedSwell = 20.0F;

std::size_t lowestManual(const ConsoleDefinition& definition)
{
    const auto manual =
        std::ranges::find(definition.divisions, false, &ConsoleDefinition::Division::isPedal);
    return manual == definition.divisions.end()
               ? 0
               : static_cast<std::size_t>(manual - definition.divisions.begin());
}

} // namespace

OrganInstrument::OrganInstrument(std::unique_ptr<ALInstrument> ranks, ConsoleDefinition definition)
    : ranks_(std::move(ranks)), console_(std::move(definition), ranks_->numStops(), *this),
      mainDivision_(lowestManual(console_.definition()))
{
    usage = ranks_->usage;
}

float OrganInstrument::getVolume(std::size_t stop) const
{
    return console_.isDrawn(stop) ? console_.state().gains[stop] : 0.0F;
}

void OrganInstrument::setVolume(std::size_t stop, float volume)
{
    if (volume > 0.0F)
        console_.setGain(stop, volume);
    console_.draw(stop, volume > 0.0F);
}

std::string OrganInstrument::stopName(std::size_t stop) const
{
    return stop < numStops() ? console_.definition().stops[stop].name : "";
}

LoadState OrganInstrument::loadState(std::size_t stop) const
{
    const auto& ranks = std::as_const(*ranks_).stops();
    std::optional<LoadState> result;
    for (const ConsoleDefinition::Pipes& pipes : console_.definition().stops.at(stop).pipes) {
        const LoadState state = ranks.at(pipes.rank).loadState;
        if (state == LoadState::Loading)
            return state;
        if (!result || state == LoadState::Loaded)
            result = state;
    }
    return result.value_or(LoadState::Loaded);
}

void OrganInstrument::playOn(std::size_t division, int key, float velocity)
{
    console_.press(division, key, velocity);
}

void OrganInstrument::stopOn(std::size_t division, int key)
{
    console_.release(division, key);
}

void OrganInstrument::silence()
{
    ranks_->silence();
    console_.forgetKeys();
}

void OrganInstrument::tune(const Temperament& temperament, int lo, int hi)
{
    ranks_->tune(temperament, lo, hi);
}

void OrganInstrument::startPipe(std::size_t rank, int key, float velocity, float gain)
{
    ranks_->startPipe(rank, key, velocity, gain);
}

void OrganInstrument::stopPipe(std::size_t rank, int key)
{
    ranks_->stopPipe(rank, key);
}

void OrganInstrument::openSwell(std::size_t division, float opening)
{
    constexpr std::size_t kSwells = 256; // group 0 is of the ranks in no swell
    if (division + 1 < kSwells)
        ranks_->setSwell(static_cast<std::uint8_t>(division + 1),
                         std::pow(10.0F, kClosedSwell * (opening - 1.0F) / 20.0F));
}

const ALInstrument* sampledRanksOf(const Instrument& instrument)
{
    if (const auto* organ = dynamic_cast<const OrganInstrument*>(&instrument))
        return &organ->ranks();
    return dynamic_cast<const ALInstrument*>(&instrument);
}

} // namespace velmora
