#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>

namespace velmora {

/// A file that cannot be read as what it claims to be: a sentence, and where in the file it holds.
class FormatError : public std::runtime_error {
public:
    /// An error of the file as a whole.
    explicit FormatError(const std::string& message);

    /// An error at a line, counted from 1.
    static FormatError atLine(std::size_t line, const std::string& message);

    /// An error at a byte, counted from 0.
    static FormatError atByte(std::size_t offset, const std::string& message);

    /// The whole sentence for the user: "FILE, line 3: MESSAGE".
    std::string inFile(const std::string& fileName) const;

private:
    FormatError(const std::string& place, const std::string& message);

    std::string place_;
};

} // namespace velmora
