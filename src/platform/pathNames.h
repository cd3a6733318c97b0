#pragma once

#include <QString>

#include <filesystem>

namespace velmora {

// Qt's names of files are UTF-16, the system's are bytes. These functions lose nothing between the
// two. See docs/decisions.md, 145.

/// Returns a path as text for Qt. In a name that is not UTF-8, each byte above 127 becomes the lone
/// surrogate U+DC00 + byte.
QString textOf(const std::filesystem::path& path);

/// Returns the name of a file without its folder, for display. A name that is not UTF-8 is taken
/// for Latin-1.
QString displayName(const std::filesystem::path& path);

/// Returns the path that `textOf` has turned into text, or that comes from Qt, as from a file
/// dialog. Qt replaces what is not UTF-8 by U+FFFD: such a name stands for the file that looks so.
std::filesystem::path pathOf(const QString& text);

} // namespace velmora
