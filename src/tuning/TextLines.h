#pragma once

#include "base/FormatError.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

/// A line of a tuning file, without its end.
struct TextLine {
    std::string_view text;
    std::size_t number; ///< From 1.
};

/// Returns the lines of a text that may begin with a byte-order mark. They end in LF, CR LF or CR;
/// the last one need not end. Throws FormatError if the text is not in an encoding that extends
/// ASCII.
std::vector<TextLine> splitTextLines(std::span<const std::byte> bytes);

/// The lines of a Scala file that are not comments, which begin with "!".
class ContentLines {
public:
    explicit ContentLines(std::span<const std::byte> bytes) : lines_(splitTextLines(bytes)) {}

    /// Returns the next line; nothing after the last one.
    std::optional<TextLine> next();

    /// Returns the next line with text. After the last one, throws FormatError with a message that
    /// says what is missing.
    TextLine need(const std::string& missing);

    /// All lines behind the last one that was read, including comments.
    std::span<const TextLine> rest() const { return std::span(lines_).subspan(next_); }

private:
    std::vector<TextLine> lines_;
    std::size_t next_ = 0;
};

/// Returns the text without the white space at its beginning and its end.
std::string_view trimmed(std::string_view text);

/// Returns the first word of a line. A comment may follow it directly.
std::string_view firstWord(std::string_view line);

/// Returns the whole number without a sign that a word consists of; nothing if it is none.
std::optional<int> wholeNumber(std::string_view word);

/// Returns the decimal number that a word consists of; nothing if it is none or too large.
std::optional<double> decimalNumber(std::string_view word);

/// Returns a number with a point, which `decimalNumber` reads back exactly.
std::string decimalText(double value);

/// Quotes the beginning of a line for an error message, with "?" for unprintable characters.
std::string quotedLine(std::string_view text);

/// Returns an error that shows a line. `place` is the part of the line where the reason was found.
FormatError errorInLine(const TextLine& line, std::string_view place, const std::string& reason);

} // namespace velmora
