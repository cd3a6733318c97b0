#pragma once

#include "import/BankSounds.h"
#include "import/gigRegions.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <tuple>
#include <utility>
#include <vector>

namespace velmora {

struct Import;

namespace RIFF {
class File;
class List;
} // namespace RIFF

namespace gig {

/// The waves of a bank, which are loaded when they are first needed.
class Waves {
public:
    /// The file and the import must outlive this object.
    Waves(const RIFF::File& file, Import& import);

    /// Returns the tuning of a recording, or else that of its wave.
    Tuning tuningOf(const Recording& recording) const;

    /// Returns the sound of a recording with its tuning. It is held by the same device as `beside`
    /// if that is not null and the sound is new. Returns null if it cannot be played, which is
    /// reported once.
    const BankSound* get(const Recording& recording, const Tuning& tuning, const Sound* beside);

private:
    /// What recordings have in common if they can share a sound: the waves and the loops.
    using Place = std::tuple<std::uint32_t, std::optional<std::uint32_t>,
                             std::vector<std::pair<std::uint32_t, std::uint32_t>>>;

    const RIFF::List* find(std::uint32_t index) const;
    Pcm decode(std::uint32_t index) const;
    BankSound load(const Recording& recording, const Tuning& tuning, const Sound* beside);

    std::vector<const RIFF::List*> waves_; ///< In the order of the table; null if one is missing.
    Import& import_;
    std::map<Place, std::optional<BankSound>> loaded_;
};

} // namespace gig

} // namespace velmora
