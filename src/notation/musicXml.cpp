#include "notation/musicXml.h"

#include <pugixml.hpp>
#include <spdlog/fmt/fmt.h>

#include <algorithm>
#include <sstream>
#include <string_view>

namespace velmora {

namespace {

pugi::xml_node append(pugi::xml_node parent, const char* name)
{
    return parent.append_child(name);
}

void append(pugi::xml_node parent, const char* name, const std::string& text)
{
    parent.append_child(name).text().set(text.c_str());
}

void append(pugi::xml_node parent, const char* name, int number)
{
    parent.append_child(name).text().set(number);
}

const char* typeOf(int value)
{
    switch (value) {
    case 1:
        return "whole";
    case 2:
        return "half";
    case 4:
        return "quarter";
    case 8:
        return "eighth";
    case 16:
        return "16th";
    default:
        return "32nd";
    }
}

void writeHeading(pugi::xml_node heading, const Score::Part& part, const std::string& instrumentId)
{
    append(heading, "part-name", part.name);
    pugi::xml_node instrument = append(heading, "score-instrument");
    instrument.append_attribute("id").set_value(instrumentId.c_str());
    append(instrument, "instrument-name", part.name);
    if (!part.program && !part.isPercussion)
        return;
    pugi::xml_node sound = append(heading, "midi-instrument");
    sound.append_attribute("id").set_value(instrumentId.c_str());
    if (part.isPercussion)
        append(sound, "midi-channel", kScorePercussion);
    if (part.program)
        append(sound, "midi-program", *part.program + 1);
}

void writeClef(pugi::xml_node attributes, std::size_t staff, bool isBass)
{
    pugi::xml_node clef = append(attributes, "clef");
    clef.append_attribute("number").set_value(static_cast<unsigned>(staff) + 1);
    append(clef, "sign", std::string(isBass ? "F" : "G"));
    append(clef, "line", isBass ? 4 : 2);
}

void writeAttributes(pugi::xml_node measure, const Score::Bar& bar, const Score::Part& part,
                     bool isFirst)
{
    if (!isFirst && !bar.keySignature && !bar.timeSignature)
        return;
    pugi::xml_node attributes = append(measure, "attributes");
    if (isFirst)
        append(attributes, "divisions", kScoreDivisions);
    if (bar.keySignature) {
        pugi::xml_node key = append(attributes, "key");
        append(key, "fifths", bar.keySignature->fifths);
        append(key, "mode", std::string(bar.keySignature->isMinor ? "minor" : "major"));
    }
    if (bar.timeSignature) {
        pugi::xml_node time = append(attributes, "time");
        append(time, "beats", bar.timeSignature->beats);
        append(time, "beat-type", bar.timeSignature->unit);
    }
    if (!isFirst)
        return;
    append(attributes, "staves", static_cast<int>(part.isBass.size()));
    for (std::size_t staff = 0; staff < part.isBass.size(); ++staff)
        writeClef(attributes, staff, part.isBass[staff]);
}

void writeTempo(pugi::xml_node measure, const Score::Bar::Tempo& tempo, int barStart)
{
    pugi::xml_node direction = append(measure, "direction");
    direction.append_attribute("placement").set_value("above");
    pugi::xml_node metronome = append(append(direction, "direction-type"), "metronome");
    append(metronome, "beat-unit", std::string("quarter"));
    metronome.append_child("per-minute").text().set(tempo.quartersPerMinute);
    if (tempo.position > barStart)
        append(direction, "offset", tempo.position - barStart);
    direction.append_child("sound").append_attribute("tempo").set_value(tempo.quartersPerMinute);
}

void writePitch(pugi::xml_node note, const WrittenPitch& written)
{
    pugi::xml_node pitch = append(note, "pitch");
    append(pitch, "step", std::string(1, written.letter));
    if (written.alteration != 0)
        append(pitch, "alter", written.alteration);
    append(pitch, "octave", written.octave);
}

void writeTie(pugi::xml_node parent, const char* name, const char* type)
{
    parent.append_child(name).append_attribute("type").set_value(type);
}

void writeNotations(pugi::xml_node note, const Score::Element& element, bool isFirst)
{
    const bool marksTriplet = isFirst && (element.beginsTriplet || element.endsTriplet);
    const bool isTied = !element.pitches.empty() && (element.isTied || element.continuesTie);
    if (!marksTriplet && !isTied)
        return;
    pugi::xml_node notations = append(note, "notations");
    if (isTied && element.continuesTie)
        writeTie(notations, "tied", "stop");
    if (isTied && element.isTied)
        writeTie(notations, "tied", "start");
    if (isFirst && element.beginsTriplet)
        writeTie(notations, "tuplet", "start");
    if (isFirst && element.endsTriplet)
        writeTie(notations, "tuplet", "stop");
}

/// Writes a note of a chord, or a rest if there is no pitch.
void writeNote(pugi::xml_node measure, const Score::Element& element, const WrittenPitch* pitch,
               const Score::Voice& voice, bool fillsBar)
{
    const bool isFirst = pitch == nullptr || pitch == element.pitches.data();
    pugi::xml_node note = append(measure, "note");
    if (pitch == nullptr && voice.number > 0)
        note.append_attribute("print-object").set_value("no");
    if (!isFirst)
        append(note, "chord");
    if (pitch != nullptr)
        writePitch(note, *pitch);
    else if (pugi::xml_node rest = append(note, "rest"); fillsBar)
        rest.append_attribute("measure").set_value("yes");
    append(note, "duration", element.value.length());
    if (pitch != nullptr && element.continuesTie)
        writeTie(note, "tie", "stop");
    if (pitch != nullptr && element.isTied)
        writeTie(note, "tie", "start");
    append(note, "voice", static_cast<int>(voice.staff * Score::kVoices + voice.number + 1));
    if (!fillsBar)
        append(note, "type", std::string(typeOf(element.value.value)));
    if (!fillsBar && element.value.isDotted)
        append(note, "dot");
    if (element.value.isTriplet) {
        pugi::xml_node modification = append(note, "time-modification");
        append(modification, "actual-notes", 3);
        append(modification, "normal-notes", 2);
    }
    append(note, "staff", static_cast<int>(voice.staff) + 1);
    writeNotations(note, element, isFirst);
}

void writeVoice(pugi::xml_node measure, const Score::Voice& voice)
{
    const bool isRest = std::ranges::all_of(
        voice.elements, [](const Score::Element& element) { return element.pitches.empty(); });
    if (isRest) {
        // A rest of a whole bar has no type: it is centred and may have any length.
        Score::Element rest = voice.elements.front();
        rest.value.isTriplet = rest.beginsTriplet = rest.endsTriplet = false;
        writeNote(measure, rest, nullptr, voice, true);
        int length = 0;
        for (const Score::Element& element : voice.elements)
            length += element.value.length();
        measure.last_child().child("duration").text().set(length);
        return;
    }
    for (const Score::Element& element : voice.elements) {
        if (element.pitches.empty())
            writeNote(measure, element, nullptr, voice, false);
        for (const WrittenPitch& pitch : element.pitches)
            writeNote(measure, element, &pitch, voice, false);
    }
}

void writeMeasure(pugi::xml_node measure, const Score& score, const Score::Part& part,
                  std::size_t index)
{
    const Score::Bar& bar = score.bars[index];
    writeAttributes(measure, bar, part, index == 0);
    if (&part == score.parts.data())
        for (const Score::Bar::Tempo& tempo : bar.tempos)
            writeTempo(measure, tempo, bar.start);
    for (const Score::Voice& voice : part.bars[index]) {
        if (&voice != part.bars[index].data())
            append(append(measure, "backup"), "duration", bar.length);
        writeVoice(measure, voice);
    }
}

std::string partId(std::size_t index)
{
    return fmt::format("P{}", index + 1);
}

} // namespace

std::string writeMusicXml(const Score& score)
{
    pugi::xml_document document;
    pugi::xml_node declaration = document.append_child(pugi::node_declaration);
    declaration.append_attribute("version").set_value("1.0");
    declaration.append_attribute("encoding").set_value("UTF-8");
    document.append_child(pugi::node_doctype)
        .set_value("score-partwise PUBLIC \"-//Recordare//DTD MusicXML 4.0 Partwise//EN\" "
                   "\"http://www.musicxml.org/dtds/partwise.dtd\"");
    pugi::xml_node root = append(document, "score-partwise");
    root.append_attribute("version").set_value("4.0");
    append(append(root, "work"), "work-title", score.title);
    append(append(append(root, "identification"), "encoding"), "software", std::string("Velmora"));
    pugi::xml_node list = append(root, "part-list");
    for (std::size_t i = 0; i < score.parts.size(); ++i) {
        pugi::xml_node part = append(list, "score-part");
        part.append_attribute("id").set_value(partId(i).c_str());
        writeHeading(part, score.parts[i], partId(i) + "-I1");
    }
    for (std::size_t i = 0; i < score.parts.size(); ++i) {
        pugi::xml_node part = append(root, "part");
        part.append_attribute("id").set_value(partId(i).c_str());
        for (std::size_t bar = 0; bar < score.bars.size(); ++bar) {
            pugi::xml_node measure = append(part, "measure");
            measure.append_attribute("number").set_value(static_cast<unsigned>(bar) + 1);
            writeMeasure(measure, score, score.parts[i], bar);
        }
    }
    std::ostringstream text;
    document.save(text, "  ");
    return text.str();
}

} // namespace velmora
