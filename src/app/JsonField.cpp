#include "app/JsonField.h"

#include "base/FormatError.h"

#include <algorithm>

namespace velmora {

Json parseJson(std::string_view text)
{
    try {
        return Json::parse(text);
    } catch (const Json::parse_error& error) {
        const std::string_view read = text.substr(0, error.byte);
        const auto line = static_cast<std::size_t>(std::ranges::count(read, '\n')) + 1;
        throw FormatError::atLine(line, "this is not valid JSON");
    } catch (const Json::exception&) {
        throw FormatError("contains a number that is too large");
    }
}

Json describePositions(const std::vector<bool>& values)
{
    Json positions = Json::array();
    for (std::size_t i = 0; i < values.size(); ++i)
        if (values[i])
            positions.push_back(i);
    return positions;
}

std::vector<bool> readPositions(const JsonField& list)
{
    constexpr int kLastPosition = 65535; // beyond every console

    std::vector<bool> values;
    for (const JsonField& field : list.elements()) {
        const auto position = static_cast<std::size_t>(field.integer(0, kLastPosition));
        values.resize(std::max(values.size(), position + 1));
        values[position] = true;
    }
    return values;
}

void JsonField::refuse(const std::string& expected) const
{
    throw FormatError('"' + name + "\" is not " + expected);
}

std::optional<JsonField> JsonField::find(const char* key) const
{
    const auto found = value.find(key);
    if (found == value.end())
        return std::nullopt;
    return JsonField{*found, name.empty() ? key : name + '.' + key};
}

std::vector<JsonField> JsonField::elements() const
{
    if (!value.is_array())
        refuse("a list");
    std::vector<JsonField> fields;
    for (const Json& element : value)
        fields.push_back({element, name + '[' + std::to_string(fields.size()) + ']'});
    return fields;
}

std::vector<JsonField> JsonField::records() const
{
    std::vector<JsonField> fields = elements();
    for (const JsonField& field : fields)
        if (!field.value.is_object())
            field.refuse("a record in braces");
    return fields;
}

std::string JsonField::text() const
{
    if (!value.is_string())
        refuse("a text in quotation marks");
    return value.get<std::string>();
}

bool JsonField::boolean() const
{
    if (!value.is_boolean())
        refuse("true or false");
    return value.get<bool>();
}

double JsonField::number(double least, double greatest) const
{
    const double number = value.is_number() ? value.get<double>() : least - 1.0;
    if (!(number >= least && number <= greatest))
        refuse("a number from " + Json(least).dump() + " to " + Json(greatest).dump());
    return number;
}

int JsonField::integer(int least, int greatest) const
{
    const double number = value.is_number_integer() ? value.get<double>() : least - 1.0;
    if (number < least || number > greatest)
        refuse("a whole number from " + std::to_string(least) + " to " + std::to_string(greatest));
    return static_cast<int>(number);
}

std::size_t JsonField::index(std::size_t count) const
{
    return static_cast<std::size_t>(integer(0, std::max(static_cast<int>(count) - 1, 0)));
}

} // namespace velmora
