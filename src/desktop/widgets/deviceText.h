#pragma once

#include <QString>

#include <string>

namespace velmora {

/// Returns the name of a MIDI device as people know it: "USB Keystation" for
/// "a2j:USB Keystation [20] (capture): USB Keystation MIDI 1". Leaves out the program that carries
/// the messages, and numbers and directions of ports.
QString deviceText(const std::string& name);

} // namespace velmora
