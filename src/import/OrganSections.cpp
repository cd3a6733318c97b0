#include "import/OrganSections.h"

#include "base/FormatError.h"
#include "base/Numbers.h"
#include "base/Text.h"

#include <algorithm>

namespace velmora {

namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kDigits = "0123456789";
constexpr std::size_t kMaximumDigits = 9; // more would not fit into an int

std::string_view withoutBlanks(std::string_view text)
{
    constexpr std::string_view kBlanks{" \t\r\0", 4};
    const std::size_t begin = text.find_first_not_of(kBlanks);
    if (begin == std::string_view::npos)
        return {};
    return text.substr(begin, text.find_last_not_of(kBlanks) + 1 - begin);
}

/// Returns a name in the form under which it is looked up.
std::string lookUpForm(std::string_view name)
{
    const std::string lower = lowerCase(std::string(withoutBlanks(name)));
    std::string result;
    for (std::size_t i = 0; i < lower.size();) {
        if (kDigits.find(lower[i]) == std::string_view::npos) {
            result += lower[i++];
            continue;
        }
        const std::size_t end = std::min(lower.find_first_not_of(kDigits, i), lower.size());
        const std::size_t first = std::min(lower.find_first_not_of('0', i), end - 1);
        result += lower.substr(first, end - first);
        i = end;
    }
    return result;
}

/// Returns the numbers of the keys that consist of a prefix and a number.
template <class Value>
std::vector<int> numbersAfter(const std::map<std::string, Value>& map, const std::string& prefix)
{
    std::vector<int> result;
    for (auto entry = map.lower_bound(prefix); entry != map.end(); ++entry) {
        const std::string_view name = entry->first;
        if (!name.starts_with(prefix))
            break;
        const std::string_view digits = name.substr(prefix.size());
        if (!digits.empty() && digits.size() <= kMaximumDigits &&
            digits.find_first_not_of(kDigits) == std::string_view::npos)
            result.push_back(leadingInteger(digits).value_or(0));
    }
    std::ranges::sort(result);
    return result;
}

} // namespace

void OrganSection::add(std::string_view key, std::string_view value, std::size_t line)
{
    lines_[lookUpForm(key)] = {std::string(withoutBlanks(value)), line};
}

std::string OrganSection::text(const std::string& key) const
{
    const auto found = lines_.find(key);
    return found == lines_.end() ? "" : found->second.value;
}

int OrganSection::integer(const std::string& key, int fallback) const
{
    return leadingInteger(text(key)).value_or(fallback);
}

double OrganSection::number(const std::string& key, double fallback) const
{
    return leadingNumber(text(key)).value_or(fallback);
}

bool OrganSection::isTrue(const std::string& key, bool fallback) const
{
    const std::string value = lowerCase(text(key));
    if (value.empty())
        return fallback;
    return value.starts_with('y') || value.starts_with('t') || value == "1";
}

std::size_t OrganSection::lineOf(const std::string& key) const
{
    const auto found = lines_.find(key);
    return found == lines_.end() ? line_ : found->second.line;
}

std::vector<int> OrganSection::numbers(const std::string& prefix) const
{
    return numbersAfter(lines_, prefix);
}

OrganSections OrganSections::read(std::string_view bytes)
{
    if (bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF"))
        throw FormatError("is written in UTF-16; save it as UTF-8 in a text editor");
    if (bytes.starts_with(kUtf8Mark))
        bytes.remove_prefix(kUtf8Mark.size());
    const std::string text = toUtf8(bytes);

    OrganSections result;
    OrganSection* section = nullptr;
    std::string_view rest = text;
    for (std::size_t number = 1; !rest.empty(); ++number) {
        const std::size_t end = std::min(rest.find_first_of("\r\n"), rest.size());
        const std::string_view line = withoutBlanks(rest.substr(0, end));
        rest.remove_prefix(end);
        rest.remove_prefix(std::min<std::size_t>(rest.starts_with("\r\n") ? 2 : 1, rest.size()));
        const std::size_t equals = line.find('=');
        if (line.starts_with('[')) {
            const auto name = withoutBlanks(line.substr(1, line.find(']') - 1));
            section = &result.sections_.try_emplace(lookUpForm(name), std::string(name), number)
                           .first->second;
        } else if (!line.starts_with(';') && equals != std::string_view::npos &&
                   section != nullptr) {
            section->add(line.substr(0, equals), line.substr(equals + 1), number);
        }
    }
    return result;
}

const OrganSection* OrganSections::find(const std::string& name) const
{
    const auto found = sections_.find(name);
    return found == sections_.end() ? nullptr : &found->second;
}

std::vector<int> OrganSections::numbers(const std::string& prefix) const
{
    return numbersAfter(sections_, prefix);
}

} // namespace velmora
