#pragma once

#include <cstdint>

namespace velmora {

/// The bytes of MIDI messages ("MIDI 1.0 Detailed Specification", MIDI Manufacturers Association).
namespace midi {

/// The number of channels.
constexpr int kChannels = 16;

/// Set in every status byte, clear in every data byte.
constexpr std::uint8_t kStatusBit = 0x80;

/// Masks for the kind and the channel in the status of a channel message.
constexpr std::uint8_t kKindMask = 0xF0;
constexpr std::uint8_t kChannelMask = 0x0F;

// Kinds of channel messages, to be combined with a channel.
constexpr std::uint8_t kNoteOff = 0x80;
constexpr std::uint8_t kNoteOn = 0x90; ///< With velocity 0 it releases the key.
constexpr std::uint8_t kControlChange = 0xB0;
constexpr std::uint8_t kProgramChange = 0xC0;   ///< One data byte.
constexpr std::uint8_t kChannelPressure = 0xD0; ///< One data byte.
constexpr std::uint8_t kPitchBend = 0xE0;       ///< The low seven bits first.

// Statuses without a channel.
constexpr std::uint8_t kFirstSystemStatus = 0xF0;
constexpr std::uint8_t kSystemExclusive = 0xF0;
constexpr std::uint8_t kEscape = 0xF7;   ///< In a file: a continued exclusive message or any bytes.
constexpr std::uint8_t kTimeCode = 0xF1; ///< A quarter frame.
constexpr std::uint8_t kTimingClock = 0xF8;
constexpr std::uint8_t kActiveSensing = 0xFE;
constexpr std::uint8_t kMetaEvent = 0xFF; ///< In a file; its type follows.

// Types of meta events.
constexpr std::uint8_t kText = 0x01;
constexpr std::uint8_t kTrackName = 0x03;
constexpr std::uint8_t kInstrumentName = 0x04;
constexpr std::uint8_t kLyric = 0x05;         ///< A syllable of the sung text.
constexpr std::uint8_t kChannelPrefix = 0x20; ///< Of the meta events that follow.
constexpr std::uint8_t kMarker = 0x06;        ///< The name of a place in the piece.
constexpr std::uint8_t kEndOfTrack = 0x2F;
constexpr std::uint8_t kTempo = 0x51;         ///< Three bytes: microseconds in a quarter note.
constexpr std::uint8_t kTimeSignature = 0x58; ///< The beats and the exponent of 2 of their value.
constexpr std::uint8_t kKeySignature = 0x59;  ///< Sharps, negative for flats; 1 for minor.
constexpr std::uint8_t kSequencerSpecific = 0x7F;

/// Stand for the pitch wheel and for the pressure of a channel in place of the number of a
/// controller.
constexpr int kPitchWheel = 128, kPressure = 129;
constexpr int kWheelCentre = 8192;

// Controllers.
constexpr std::uint8_t kBankSelect = 0;
constexpr std::uint8_t kModulation = 1;
constexpr std::uint8_t kChannelVolume = 7;
constexpr std::uint8_t kExpression = 11;
constexpr std::uint8_t kVibratoRate = 76;
constexpr std::uint8_t kVibratoDepth = 77;
constexpr std::uint8_t kVibratoDelay = 78;
constexpr std::uint8_t kSustain = 64;      ///< A pedal is down from 64 on.
constexpr std::uint8_t kSostenuto = 66;    ///< A pedal.
constexpr std::uint8_t kSoft = 67;         ///< A pedal.
constexpr std::uint8_t kAllSoundOff = 120; ///< The first of the channel mode messages.
constexpr std::uint8_t kResetControllers = 121;
constexpr std::uint8_t kAllNotesOff = 123; ///< As do the mode messages 124 to 127.

} // namespace midi

} // namespace velmora
