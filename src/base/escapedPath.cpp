#include "base/escapedPath.h"

#include "base/Text.h"

#include <charconv>
#include <system_error>

namespace velmora {

namespace {

constexpr std::string_view kHexDigits = "0123456789ABCDEF";

} // namespace

std::string escapePath(const std::filesystem::path& path)
{
    const std::string& bytes = path.native();
    const bool isText = toUtf8(bytes) == bytes;
    std::string text;
    for (const char byte : bytes) {
        const auto code = static_cast<unsigned char>(byte);
        if (byte == '%' || (code >= 0x80 && !isText)) {
            text += '%';
            text += kHexDigits[code >> 4];
            text += kHexDigits[code & 0x0F];
        } else {
            text += byte;
        }
    }
    return text;
}

std::filesystem::path unescapePath(std::string_view text)
{
    std::string bytes;
    while (!text.empty()) {
        unsigned char code = 0;
        const std::string_view digits = text.substr(1, 2);
        const char* end = digits.data() + digits.size();
        if (text.front() == '%' && digits.size() == 2 &&
            std::from_chars(digits.data(), end, code, 16) ==
                std::from_chars_result{end, std::errc()}) {
            bytes += static_cast<char>(code);
            text.remove_prefix(3);
        } else {
            bytes += text.front();
            text.remove_prefix(1);
        }
    }
    return bytes;
}

} // namespace velmora
