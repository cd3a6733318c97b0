#pragma once

#include "import/ImportOptions.h"
#include "import/InstrumentFormat.h"
#include "sound/ConsoleState.h"
#include "tuning/KeyTemperament.h"
#include "tuning/TransposedTemperament.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

/// What is open at one moment, to be opened again at another.
struct Session {
    struct Instrument {
        std::filesystem::path path; ///< Absolute; empty for the General MIDI player.
        InstrumentFormat format = InstrumentFormat::SoundFont; ///< The format of that file.
        ImportOptions options;                                 ///< How it was read.
        std::vector<float> gains;                              ///< The gain of each stop, 0…1.
        int bank = 0;    ///< The bank of the selected program, if the file has programs.
        int program = 0; ///< Its number.
        std::optional<ConsoleState> console{}; ///< In place of the gains for an organ.
    };

    struct Tuning {
        std::filesystem::path path;           ///< Absolute; empty for one that has no file.
        std::filesystem::path mapping{};      ///< Of the keyboard; absolute, or empty for none.
        std::string name{};                   ///< Only of one that has no file.
        std::optional<KeyPitches> received{}; ///< The pitches that a MIDI device has sent.
    };

    struct Piece {
        std::filesystem::path path; ///< Absolute.
        double position = 0.0;      ///< In steps.
    };

    std::vector<Instrument> instruments;
    std::size_t currentInstrument = 0; ///< Its position in that list.
    std::uint8_t program = 0;          ///< The General MIDI program.
    std::vector<Tuning> tunings;       ///< Those that a new program would not list as they are.
    std::string tuning;                ///< The name of the current tuning; may be empty.
    Transposition standing;            ///< The root and the pitch of the tunings.
    int transposition = 0;             ///< In semitones.
    std::vector<Piece> pieces;
    std::size_t currentPiece = 0; ///< Its position in that list.
    std::string layout;           ///< How the windows are arranged, as bytes for the desktop only.
};

/// Returns a session as the text of a session file, which is JSON. Each file is named by its
/// absolute path and by its path from `folder`, the folder of the session file.
std::string encodeSession(const Session& session, const std::filesystem::path& folder);

/// Returns the session that a session file in `folder` describes. A file that exists at its path
/// from the folder is taken from there, so that a session can be moved with its files. Fields that
/// this version does not know are ignored. Throws FormatError, with the line if the text is not
/// JSON, and otherwise with the name of the field that is wrong.
Session decodeSession(std::string_view text, const std::filesystem::path& folder);

} // namespace velmora
