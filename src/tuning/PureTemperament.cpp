#include "tuning/PureTemperament.h"

#include "base/fading.h"
#include "tuning/Tunable.h"

#include <chrono>
#include <cmath>
#include <cstdlib>
#include <optional>

namespace velmora {

namespace {

constexpr unsigned kPureClasses = 12;

// How stiff the springs are that pull at a pitch class.
constexpr double kIntervalSpring = 1.0; ///< Towards a pure interval with another one.
constexpr double kHeldSpring = 1.0;     ///< To where it sounds already.
constexpr double kMeantoneSpring = 0.05;

/// In silence, the drift that returns falls to 1/e in so many seconds.
constexpr double kReturnSeconds = 2.0;

/// By how much pure fifths and major sixths are wider than those of quarter-comma meantone, whose
/// major thirds are pure: a quarter of the syntonic comma, in cents.
constexpr double kQuarterComma = 5.3765724;

/// Returns by how much a pure interval is wider than the meantone one that leads `places` up the
/// chain of fifths; empty if no simple ratio belongs to it.
std::optional<double> excess(int places)
{
    switch (std::abs(places)) {
    case 1: // 3/2
        return places > 0 ? kQuarterComma : -kQuarterComma;
    case 3: // 5/3, which 6/5 completes to an octave
        return places > 0 ? -kQuarterComma : kQuarterComma;
    case 4: // 5/4
        return 0.0;
    default:
        return std::nullopt;
    }
}

/// Springs between up to twelve points on a line. They rest where the sum of their energies is
/// least.
class Springs {
public:
    explicit Springs(unsigned points) : points_(points) {}

    /// Pulls a point to a place.
    void pull(unsigned point, double place, double stiffness)
    {
        matrix_[point][point] += stiffness;
        right_[point] += stiffness * place;
    }

    /// Pulls the second point to a distance above the first.
    void join(unsigned first, unsigned second, double distance, double stiffness)
    {
        pull(first, -distance, stiffness);
        pull(second, distance, stiffness);
        matrix_[first][second] -= stiffness;
        matrix_[second][first] -= stiffness;
    }

    /// Returns where the points rest. Each of them must have been pulled to a place, so that the
    /// matrix is positive definite and needs no pivoting.
    std::array<double, kPureClasses> rest()
    {
        for (unsigned row = 0; row < points_; ++row) {
            for (unsigned below = row + 1; below < points_; ++below) {
                const double part = matrix_[below][row] / matrix_[row][row];
                for (unsigned column = row; column < points_; ++column)
                    matrix_[below][column] -= part * matrix_[row][column];
                right_[below] -= part * right_[row];
            }
        }
        for (unsigned row = points_; row-- > 0;) {
            for (unsigned column = row + 1; column < points_; ++column)
                right_[row] -= matrix_[row][column] * right_[column];
            right_[row] /= matrix_[row][row];
        }
        return right_;
    }

private:
    unsigned points_;
    std::array<std::array<double, kPureClasses>, kPureClasses> matrix_{};
    std::array<double, kPureClasses> right_{};
};

} // namespace

PureTemperament::PureTemperament(Drift drift, const SpellingFollower::Settings& settings)
    : FollowingMeantone(settings),
      policy_(drift), current_{Cent(0), Cent(0), Cent(0), Cent(0), Cent(0), Cent(0),
                               Cent(0), Cent(0), Cent(0), Cent(0), Cent(0), Cent(0)}
{
    updatePitches();
}

std::unique_ptr<Temperament> PureTemperament::fresh() const
{
    auto copy = std::make_unique<PureTemperament>(policy_, follower().settings());
    copy->setBaseFrequency(baseFrequency());
    return copy;
}

void PureTemperament::setup(Tunable& instrument, unsigned char key, float /*velocity*/)
{
    std::array<bool, kPureClasses> wasHeld{};
    for (unsigned i = 0; i < kPureClasses; ++i)
        wasHeld[i] = follower().isHeld(i);
    follow(key);
    adjust(wasHeld);
    updatePitches();
    instrument.tune(*this, 0, 127);
}

void PureTemperament::fade(double /*factor*/)
{
    if (policy_ != Drift::Returns)
        return;
    for (unsigned i = 0; i < kPureClasses; ++i)
        if (follower().isHeld(i))
            return;
    drift_ *= std::exp(-std::chrono::duration<double>(kFadeInterval).count() / kReturnSeconds);
}

void PureTemperament::adjust(const std::array<bool, 12>& wasHeld)
{
    std::array<unsigned, kPureClasses> sounding{};
    unsigned count = 0;
    for (unsigned i = 0; i < kPureClasses; ++i)
        if (follower().isHeld(i))
            sounding[count++] = i;
    Springs springs(count);
    for (unsigned one = 0; one < count; ++one) {
        const unsigned pitchClass = sounding[one];
        springs.pull(one, policy_ == Drift::TiedToA ? 0.0 : drift_, kMeantoneSpring);
        if (wasHeld[pitchClass])
            springs.pull(one, offsets_[pitchClass], kHeldSpring);
        for (unsigned other = 0; other < one; ++other)
            if (const auto wider =
                    excess(follower().place(pitchClass) - follower().place(sounding[other])))
                springs.join(other, one, *wider, kIntervalSpring);
    }
    const auto rest = springs.rest();
    double sum = 0.0;
    for (unsigned one = 0; one < count; ++one)
        sum += offsets_[sounding[one]] = rest[one];
    drift_ = sum / count;
}

void PureTemperament::updatePitches()
{
    for (unsigned i = 0; i < kPureClasses; ++i)
        current_[i] = Cent(FollowingMeantone::getTuning(i).cent() + offsets_[i]);
}

} // namespace velmora
