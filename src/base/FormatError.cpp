#include "base/FormatError.h"

#include "base/Text.h"

namespace velmora {

FormatError::FormatError(const std::string& message) : std::runtime_error(message) {}

FormatError::FormatError(const std::string& place, const std::string& message)
    : std::runtime_error(message), place_(place)
{
}

FormatError FormatError::atLine(std::size_t line, const std::string& message)
{
    return {"line " + std::to_string(line), message};
}

FormatError FormatError::atColumn(std::size_t line, std::size_t column, const std::string& message)
{
    return {"line " + std::to_string(line) + ", column " + std::to_string(column), message};
}

FormatError FormatError::atByte(std::size_t offset, const std::string& message)
{
    return {"byte " + std::to_string(offset), message};
}

std::string FormatError::inFile(const std::string& fileName) const
{
    return toUtf8(fileName) + (place_.empty() ? "" : ", " + place_) + ": " + what();
}

} // namespace velmora
