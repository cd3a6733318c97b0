#pragma once

#include "desktop/widgets/scheme.h"
#include "sequencer/PracticePart.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace velmora {

/// Red, green, blue and opacity.
using RollShade = std::array<std::uint8_t, 4>;

/// The colours of the piano roll, from the scheme, the preferences and the theme. In the calm
/// scheme every note differs from the columns behind it by at least 3 : 1.
struct RollColors {
    explicit RollColors(const QPalette& palette);

    /// The colours of a scheme that need not be the preferred one.
    RollColors(const QPalette& palette, Scheme which);

    Scheme scheme;
    RollShade whiteColumn; ///< Also the background.
    RollShade blackColumn;
    RollShade middleC;
    RollShade columnLine, octaveLine;
    RollShade stepLine, beatLine, barLine;
    RollShade selected; ///< Selected notes and the play position.
    RollShade interval; ///< Translucent.
    RollShade outline;  ///< Of selected notes.
    RollShade recorded; ///< Notes of the running take.
    RollShade playing;
    RollShade leftOut; ///< Notes that the user need not or cannot play.

    /// What the user practises, if anything. Other notes have the colour `leftOut`.
    std::optional<PracticePart> practised{};

    /// The colour of a note that is at rest: its channel's, paler if it is soft, or the user's.
    RollShade atRest(const Note& note) const;

    /// The colour of a note in its state, as text behind it needs it.
    QColor of(const Note& note) const;

    /// The darker or lighter colour of a note's onset.
    RollShade onset(RollShade note) const;

private:
    static constexpr std::size_t kChannels = 16, kVelocities = 8;

    void setCalm(const QPalette& palette);

    RollShade text_;
    std::optional<RollShade> note_; ///< The colour of every note, if it is not the channel's.
    std::array<std::array<RollShade, kVelocities>, kChannels> notes_;
};

} // namespace velmora
