#pragma once

#include "notation/Piece.h"
#include "notation/measureOrder.h"

#include <pugixml.hpp>

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace velmora {

/// What a measure of a part says. Times are in quarter notes from its beginning.
struct MusicXmlMeasure {
    struct Note {
        Piece::Note note;
        int staff = 1; ///< From the top.
        bool startsTie = false, stopsTie = false;
        std::vector<std::pair<int, std::string>> lyrics; ///< With the numbers of their verses.
    };

    double length = 0.0;
    std::vector<Note> notes;
    std::vector<Piece::TimeSignature> timeSignatures;
    std::vector<Piece::KeySignature> keySignatures;
    std::vector<Piece::Tempo> tempos;
    MeasureSigns signs;
};

/// Reads the measures of a part, one after the other. Pitches are those that sound.
class MusicXmlPartReader {
public:
    /// `unpitched` are the MIDI keys of the instruments that have no pitch, by their identities.
    explicit MusicXmlPartReader(std::map<std::string, unsigned> unpitched)
        : unpitched_(std::move(unpitched))
    {
    }

    /// Throws FormatError if the measure is longer than any music.
    MusicXmlMeasure read(pugi::xml_node measure);

private:
    double quarters(double position) const { return position / divisions_; }
    double durationOf(pugi::xml_node element) const;
    void advance(double duration);

    /// Throws FormatError if a position is too late for any measure.
    void requireInMeasure(double position) const;

    void setDivisions(double divisions);
    void readAttributes(pugi::xml_node attributes);
    void readTime(pugi::xml_node time);
    void readTransposition(pugi::xml_node transpose);
    void readDirection(pugi::xml_node direction);
    void readSound(pugi::xml_node sound, double offset);
    void readBarLine(pugi::xml_node barLine);
    void readNote(pugi::xml_node note);
    std::optional<Piece::Note> soundOf(pugi::xml_node note) const;
    void placeGraceNotes(double start);

    std::map<std::string, unsigned> unpitched_;
    MusicXmlMeasure measure_;
    std::string number_;     ///< Of the measure.
    double divisions_ = 1.0; ///< Of a quarter note; the unit of the positions.
    double position_ = 0.0, longest_ = 0.0, chordStart_ = 0.0;
    int transposedKeys_ = 0, transposedPlaces_ = 0;
    float velocity_ = 0.6F;    ///< Between mezzo piano and mezzo forte before the first sign.
    std::uint32_t passes_ = 0; ///< Of the ending that has not stopped yet.
    std::vector<MusicXmlMeasure::Note> grace_; ///< Those that wait for the note that they adorn.
};

} // namespace velmora
