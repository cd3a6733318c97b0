#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>

namespace velmora {

/// The reason why a file cannot be read, and the place in the file where it was found.
class FormatError : public std::runtime_error {
public:
    /// Creates an error of the file as a whole.
    explicit FormatError(const std::string& message);

    /// Creates an error at a line number, counted from 1.
    static FormatError atLine(std::size_t line, const std::string& message);

    /// Creates an error at a line and a column in it, both counted from 1.
    static FormatError atColumn(std::size_t line, std::size_t column, const std::string& message);

    /// Creates an error at a byte offset from the start of the file.
    static FormatError atByte(std::size_t offset, const std::string& message);

    /// Returns the full message for the user: "FILE, line 3: MESSAGE".
    std::string inFile(const std::string& fileName) const;

private:
    FormatError(const std::string& place, const std::string& message);

    std::string place_;
};

} // namespace velmora
