#include "import/hauptwerk1.h"

#include "base/File.h"
#include "base/FormatError.h"
#include "base/Log.h"
#include "base/Numbers.h"
#include "base/Text.h"
#include "import/SampleFiles.h"
#include "tuning/Temperament.h"

#include <spdlog/fmt/fmt.h>

#include <algorithm>
#include <unordered_map>

namespace velmora {

namespace hauptwerk1 {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// Returns the text without its last `count` characters; empty if it is not longer than that.
std::string_view withoutLast(std::string_view text, std::size_t count)
{
    return text.substr(0, text.size() - std::min(count, text.size()));
}

} // namespace

Sections readSections(std::string_view bytes, LineEnd lineEnd)
{
    if (bytes.starts_with(kByteOrderMark))
        bytes.remove_prefix(kByteOrderMark.size());
    const std::size_t returns = lineEnd == LineEnd::CarriageReturnLineFeed ? 1 : 0;

    Sections sections;
    Section* section = nullptr;
    while (!bytes.empty()) {
        const std::size_t end = bytes.find('\n');
        if (end == std::string_view::npos && lineEnd == LineEnd::CarriageReturnLineFeed)
            break;
        const std::string_view line = bytes.substr(0, end);
        bytes.remove_prefix(std::min(line.size() + 1, bytes.size()));

        const std::size_t equals = line.find('=');
        if (line.starts_with('[')) {
            section = &sections[std::string(withoutLast(line.substr(1), 1 + returns))];
            // See docs/decisions.md, 64.
            section->clear();
        } else if (!line.starts_with(';') && equals != std::string_view::npos &&
                   section != nullptr) {
            (*section)[std::string(line.substr(0, equals))] =
                withoutLast(line.substr(equals + 1), returns);
        }
    }
    return sections;
}

} // namespace hauptwerk1

namespace {

using hauptwerk1::Section;
using hauptwerk1::Sections;

/// Approximate number of progress updates.
constexpr long kUpdatesOfSections = 100;

/// Returns the value of a key, or an empty text.
std::string valueOf(const Section& section, const std::string& key)
{
    const auto found = section.find(key);
    return found == section.end() ? "" : found->second;
}

std::string valueOf(const Sections& sections, const std::string& name, const std::string& key)
{
    const auto found = sections.find(name);
    return found == sections.end() ? "" : valueOf(found->second, key);
}

int integer(const std::string& text)
{
    return leadingInteger(text).value_or(0);
}

/// Returns the number in the three characters after "Stop" or "Pipe".
int numberOf(const std::string& name)
{
    // See docs/decisions.md, 66.
    return integer(name.substr(4, 3));
}

/// Returns true if a pipe's value is not a file name: it is empty, "DUMMY", or "REF:" followed by
/// another pipe.
bool isPlaceholder(const std::string& value)
{
    const std::string lower = lowerCase(value);
    return lower.empty() || lower == "dummy" || lower.starts_with("ref:");
}

/// Turns each "Stop" section into a stop and finds the files of its pipes.
class SectionsAssembly {
public:
    SectionsAssembly(const Sections& sections, const std::filesystem::path& folder)
        : sections_(sections), folder_(folder),
          firstKey_(integer(valueOf(sections, "Manual001", "FirstAccessibleKeyMIDINoteNumber")))
    {
        organ_.updates = kUpdatesOfSections;
        organ_.doneText = "DONE";
    }

    Organ assemble()
    {
        for (const auto& [name, section] : sections_) {
            if (name.starts_with("Stop"))
                addStop(name, section);
        }
        return std::move(organ_);
    }

private:
    /// Adds a stop. The name and the pipes of the section go to the stop with the section's number,
    /// which is a different one if the sections are not numbered 1, 2, 3 ….
    void addStop(const std::string& name, const Section& section)
    {
        organ_.stops.emplace_back();
        // See docs/decisions.md, 65.
        const auto stop = static_cast<std::size_t>(numberOf(name)) - 1; // wraps for 0 and below
        if (stop < organ_.stops.size())
            organ_.stops[stop] = valueOf(section, "Name");
        ++rank_;
        for (const auto& [key, value] : section) {
            if (key.starts_with("Pipe"))
                addPipe(stop, numberOf(key), value, fmt::format("{} {}", name, key));
        }
    }

    void addPipe(std::size_t stop, int number, const std::string& value, const std::string& place)
    {
        Organ::Pipe& pipe = organ_.pipes.emplace_back();
        pipe.rank = rank_;
        pipe.text = value;
        const long key = long{firstKey_} + number - 1;
        if (isPlaceholder(value)) {
            organ_.skipped.emplace_back(place, "does not name a file: \"" + value + '"');
        } else if (stop >= organ_.stops.size()) {
            organ_.skipped.emplace_back(place, "a stop with a lower number is missing");
        } else if (key < 0 || key >= static_cast<long>(kKeys)) {
            organ_.skipped.emplace_back(place, "is for MIDI note " + std::to_string(key) +
                                                   ", which is outside 0 to 127");
        } else if (const auto path = files_.find(folder_, value);
                   SampleFiles::leaves(folder_, path)) {
            organ_.skipped.emplace_back(place, "names a file outside the folder of the organ: \"" +
                                                   value + '"');
        } else {
            pipe.stop = stop;
            pipe.key = static_cast<int>(key);
            pipe.file = fileIndex(path);
        }
    }

    std::size_t fileIndex(const std::filesystem::path& path)
    {
        const auto [index, isNew] = indices_.try_emplace(path.native(), organ_.files.size());
        if (isNew)
            organ_.files.push_back({path.native(), path});
        return index->second;
    }

    const Sections& sections_;
    SampleFiles files_;
    std::filesystem::path folder_;
    int firstKey_; ///< The key of pipe 1 of every stop.
    Organ organ_;
    std::size_t rank_ = 0;
    std::unordered_map<std::string, std::size_t> indices_; ///< Index of each file by its path.
};

bool anyExists(const std::vector<Organ::File>& files)
{
    return std::any_of(files.begin(), files.end(), [](const Organ::File& file) {
        std::error_code error;
        return std::filesystem::is_regular_file(file.path, error);
    });
}

std::string bytesOf(const std::filesystem::path& path)
{
    try {
        return readTextFile(path);
    } catch (const FormatError& error) {
        const Logger log = logger("import");
        // See docs/decisions.md, 125.
        log.debug("Couldn't open File '{}'", path.string());
        log.warn("{}", error.inFile(path.string()));
        throw;
    }
}

} // namespace

Organ hauptwerk1::findPipes(const Sections& sections, const std::filesystem::path& folder)
{
    return SectionsAssembly(sections, folder).assemble();
}

void readHauptwerk1(const std::filesystem::path& path, Import& import)
{
    using enum hauptwerk1::LineEnd;
    const std::string bytes = bytesOf(path);
    const auto folder = std::filesystem::absolute(path).parent_path();
    Sections sections = hauptwerk1::readSections(bytes, CarriageReturnLineFeed);
    Organ organ = hauptwerk1::findPipes(sections, folder);
    // See docs/decisions.md, 63.
    if (!anyExists(organ.files) && bytes.find('\r') == std::string::npos) {
        sections = hauptwerk1::readSections(bytes, LineFeed);
        organ = hauptwerk1::findPipes(sections, folder);
    }
    import.name = valueOf(sections, "Organ", "ChurchName");
    loadOrgan(organ, import);
    // Extended keys sound at their own pitch even before the instrument is tuned.
    for (InstrumentStop& stop : import.instrument->stops())
        stop.tune(equal, 0, static_cast<int>(kKeys) - 1);
}

} // namespace velmora
