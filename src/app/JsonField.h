#pragma once

#include <nlohmann/json.hpp>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

using Json = nlohmann::ordered_json;

/// Parses the text of a file. Throws FormatError, with the line if the text is not JSON.
Json parseJson(std::string_view text);

struct JsonField;

/// Returns the positions of what is true, as a list.
Json describePositions(const std::vector<bool>& values);

/// Returns values of which those at the positions of a list are true. Throws as the functions of
/// the field; no position may be above 65535.
std::vector<bool> readPositions(const JsonField& list);

/// A value of a JSON file and the name that a sentence gives to it, such as "pieces[2].path". The
/// functions that read it throw FormatError with that name if it is not what is expected.
struct JsonField {
    const Json& value;
    std::string name;

    [[noreturn]] void refuse(const std::string& expected) const;

    std::optional<JsonField> find(const char* key) const;

    /// The elements of a list.
    std::vector<JsonField> elements() const;

    /// The elements of a list of records.
    std::vector<JsonField> records() const;

    std::string text() const;
    bool boolean() const;
    double number(double least, double greatest) const;
    int integer(int least, int greatest) const;

    /// A position in a list of `count` entries; 0 if the list is empty.
    std::size_t index(std::size_t count) const;
};

} // namespace velmora
