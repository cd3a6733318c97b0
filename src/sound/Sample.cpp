#include "sound/Sample.h"

#include "audio/SampleRenderer.h"
#include "base/fading.h"

#include <algorithm>
#include <cassert>
#include <chrono>
#include <functional>
#include <utility>

namespace velmora {

namespace {

/// How far a velocity is from those that a sound is for.
float distance(const Sample::Attack& attack, float velocity)
{
    return std::max({0.0F, attack.softest - velocity, velocity - attack.loudest});
}

const ReleaseAlignment* alignmentOf(const Sample::Release& release, std::size_t attack)
{
    return attack < release.alignments.size() ? release.alignments[attack].get() : nullptr;
}

double secondsOf(const Sound& sound, float factor)
{
    return static_cast<double>(sound.frames()) / sound.rate() / static_cast<double>(factor);
}

} // namespace

void Sample::setBuffer(const Sound& sound, double rootPitch)
{
    for (std::size_t i = 0; i < sources_.size(); ++i) {
        const SampleId id = sources_[i].id;
        const Sound& owner =
            *(i < attacks_.size() ? attacks_[i].sound : releases_[i - attacks_.size()].sound);
        owner.renderer().device(id.device).remove(id.number);
    }
    *this = Sample();
    // See docs/decisions.md, 25.
    add({&sound, rootPitch}, SampleSources::Use::Plain);
}

void Sample::addAttack(const Attack& attack)
{
    add(attack, SampleSources::Use::Musical);
}

void Sample::add(const Attack& attack, SampleSources::Use use)
{
    assert(releases_.empty());
    sources_.push_back(sourceFor(*attack.sound, use));
    attacks_.push_back(attack);
    following_.emplace_back();
}

Sample::Source Sample::sourceFor(const Sound& sound, SampleSources::Use use)
{
    SampleSources& device = sound.renderer().device(sound.device());
    const bool loops = sound.loop().has_value();
    return {{sound.device(), device.add(sound.buffer(), loops, use)}};
}

void Sample::addRelease(const Release& release)
{
    assert(std::ranges::all_of(attacks_, [&](const Attack& attack) {
        return attack.sound->device() == release.sound->device();
    }));
    sources_.push_back(sourceFor(*release.sound, SampleSources::Use::Musical));
    releases_.push_back(release);
    for (std::size_t i = 0; i < attacks_.size(); ++i)
        following_[i] = releasesOf(i);
}

std::vector<FollowingSound> Sample::releasesOf(std::size_t attack) const
{
    std::vector<FollowingSound> result;
    for (std::size_t i = 0; i < releases_.size(); ++i) {
        const Release& release = releases_[i];
        const Attack& before = attacks_[attack];
        result.push_back({sources_[attacks_.size() + i].id.number, release.gain / before.gain,
                          static_cast<float>(before.rootPitch / release.rootPitch),
                          release.longestHeld, alignmentOf(release, attack)});
    }
    const auto continues = [](const FollowingSound& one) { return one.alignment != nullptr; };
    if (std::ranges::any_of(result, continues))
        std::erase_if(result, std::not_fn(continues));
    std::ranges::stable_sort(result, {}, &FollowingSound::longestHeld);
    return result;
}

std::size_t Sample::attackFor(float velocity) const
{
    const auto rank = [&](std::size_t i) {
        return std::pair(distance(attacks_[i], velocity), sources_[i].lastStart);
    };
    std::size_t best = 0;
    for (std::size_t i = 1; i < attacks_.size(); ++i)
        if (rank(i) < rank(best))
            best = i;
    return best;
}

void Sample::play(float volume, float velocity, std::uint8_t swell)
{
    if (attacks_.empty())
        return;
    SampleRenderer& renderer = attacks_.front().sound->renderer();
    const std::size_t before = std::exchange(attack_, attackFor(velocity));
    if (isPlaying_ && before != attack_)
        renderer.cut(sources_[before].id);
    const Attack& attack = attacks_[attack_];
    sources_[attack_].lastStart = ++starts_;
    renderer.start(sources_[attack_].id, volume * attack.gain, factorOf(attack.rootPitch), swell);
    released_ = false;
    isPlaying_ = true;
    gain_ = volume;
}

void Sample::stop()
{
    if (attacks_.empty())
        return;
    if (isPlaying_ && !released_) {
        const bool endsItself = playsToItsEnd();
        if (!endsItself)
            attacks_.front().sound->renderer().release(sources_[attack_].id, following_[attack_]);
        tail_ = endsItself
                    ? secondsOf(*attacks_[attack_].sound, factorOf(attacks_[attack_].rootPitch))
                    : longestRelease();
    }
    released_ = true;
}

bool Sample::playsToItsEnd() const
{
    return isPercussive_ && !attacks_[attack_].sound->loop();
}

double Sample::longestRelease() const
{
    double longest = 0.0;
    for (const Release& release : releases_)
        longest = std::max(longest, secondsOf(*release.sound, factorOf(release.rootPitch)));
    return longest;
}

void Sample::silence()
{
    released_ = false;
    isPlaying_ = false;
    tail_ = 0.0;
}

void Sample::fade(double factor)
{
    if (!released_)
        return;
    gain_ *= factor;
    tail_ -= std::chrono::duration<double>(kFadeInterval).count();
    if (gain_ < kFaded && tail_ <= 0.0)
        silence();
}

void Sample::fixPitch(double pitch)
{
    tune(pitch);
    hasFixedPitch_ = true;
}

void Sample::tune(double pitch)
{
    if (attacks_.empty() || hasFixedPitch_)
        return;
    const auto factor = static_cast<float>(pitch / rootPitch());
    if (factor == factor_)
        return;
    factor_ = factor;
    if (!isPlaying_)
        return;
    SampleRenderer& renderer = attacks_.front().sound->renderer();
    renderer.setPitch(sources_[attack_].id, factorOf(attacks_[attack_].rootPitch),
                      following_[attack_]);
}

unsigned Sample::source() const
{
    if (attacks_.empty())
        return 0;
    const SampleId id = sources_.front().id;
    return attacks_.front().sound->renderer().device(id.device).source(id.number);
}

float Sample::factorOf(double rootPitch) const
{
    return rootPitch == this->rootPitch()
               ? factor_
               : static_cast<float>(factor_ * (this->rootPitch() / rootPitch));
}

} // namespace velmora
