#include "tuning/KeyTuningFile.h"

#include "base/Text.h"
#include "tuning/TextLines.h"

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

constexpr std::size_t kKeys = 128;

/// The frequency of key 0 in equal temperament.
constexpr double kLowestHertz = 8.1757989156437073336;

/// A line of a section: "note 60 = 6000".
struct KeyEntry {
    std::string key; ///< In lower case.
    std::string_view value;
};

KeyEntry entryIn(const TextLine& line, std::string_view content)
{
    const std::size_t sign = content.find('=');
    if (sign == std::string_view::npos)
        throw errorInLine(line, content, "has no =");
    return {lowerCase(std::string(trimmed(content.substr(0, sign)))),
            trimmed(content.substr(sign + 1))};
}

double readNumber(const TextLine& line, std::string_view value)
{
    const auto number = decimalNumber(value);
    if (!number)
        throw errorInLine(line, value, "is not a number");
    return *number;
}

/// The cents of the keys above key 0, as a section has them.
struct KeySection {
    bool exists = false;
    std::size_t highest = 0; ///< The highest key that was given.
    std::array<double, kKeys> cents{};

    KeySection()
    {
        for (std::size_t key = 0; key < kKeys; ++key)
            cents[key] = 100.0 * static_cast<double>(key);
    }

    /// Takes an entry that begins with "note". Keys beyond the keyboard do not count.
    void take(const TextLine& line, const KeyEntry& entry)
    {
        const auto key = wholeNumber(trimmed(std::string_view(entry.key).substr(4)));
        const double value = readNumber(line, entry.value);
        if (!key || static_cast<std::size_t>(*key) >= kKeys)
            return;
        cents[static_cast<std::size_t>(*key)] = value;
        highest = std::max(highest, static_cast<std::size_t>(*key));
    }

    /// Gives the keys above the highest one the cents of those from key 0 up, and so on.
    void repeat()
    {
        for (std::size_t key = highest + 1; highest > 0 && key < kKeys; ++key)
            cents[key] = cents[key - highest] + cents[highest];
    }
};

/// What the sections of a file say.
class KeySections {
public:
    void take(const TextLine& line)
    {
        const std::string_view content = trimmed(line.text.substr(0, line.text.find(';')));
        if (content.starts_with('[')) {
            section_ = lowerCase(std::string(content));
            exact_.exists |= section_ == "[exact tuning]";
            rounded_.exists |= section_ == "[tuning]";
            hasFormulas_ |= section_ == "[functional tuning]";
        } else if (!content.empty()) {
            takeEntry(line, content);
        }
    }

    KeyTunings result()
    {
        if (!exact_.exists && !rounded_.exists)
            throw FormatError(hasFormulas_ ? "the pitches are only given by formulas, in the "
                                             "section [Functional Tuning]"
                                           : "there is no section [Exact Tuning] or [Tuning]");
        if (exact_.exists)
            exact_.repeat();
        const KeySection& section = exact_.exists ? exact_ : rounded_;
        KeyTunings tunings{name_, {}};
        for (std::size_t key = 0; key < kKeys; ++key) {
            const double hertz = lowestHertz_ * std::exp2(section.cents[key] / 1200.0);
            if (!std::isnormal(hertz) || hertz < 0.0 || !std::isfinite(2.0 * hertz))
                throw FormatError("the pitch of key " + std::to_string(key) +
                                  " is beyond all bounds");
            tunings.hertz[key] = hertz;
        }
        return tunings;
    }

private:
    void takeEntry(const TextLine& line, std::string_view content)
    {
        const bool isExact = section_ == "[exact tuning]";
        if (!isExact && section_ != "[tuning]" && section_ != "[info]")
            return;
        const KeyEntry entry = entryIn(line, content);
        if (section_ == "[info]") {
            if (entry.key == "name")
                name_ = toUtf8(withoutQuotes(entry.value));
        } else if (entry.key.starts_with("note")) {
            (isExact ? exact_ : rounded_).take(line, entry);
        } else if (isExact && entry.key == "basefreq") {
            lowestHertz_ = readNumber(line, entry.value);
        }
    }

    static std::string_view withoutQuotes(std::string_view text)
    {
        if (text.size() < 2 || !text.starts_with('"') || !text.ends_with('"'))
            return text;
        return text.substr(1, text.size() - 2);
    }

    std::string section_, name_;
    KeySection exact_, rounded_;
    bool hasFormulas_ = false;
    double lowestHertz_ = kLowestHertz;
};

} // namespace

KeyTunings readKeyTunings(std::span<const std::byte> bytes)
{
    KeySections sections;
    for (const TextLine& line : splitTextLines(bytes)) {
        if (lowerCase(std::string(trimmed(line.text))) == "[scale end]")
            break; // more scales may follow
        sections.take(line);
    }
    return sections.result();
}

} // namespace velmora
