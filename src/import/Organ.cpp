#include "import/Organ.h"

#include "base/FormatError.h"
#include "import/SoundLoader.h"
#include "tuning/Temperament.h"

#include <algorithm>
#include <map>
#include <memory>

namespace velmora {

namespace {

/// The lowest and the highest sounding pipe of a rank.
struct Compass {
    int lowest = static_cast<int>(kKeys);
    int highest = 0;
    const Sound* lowestSound = nullptr;
    const Sound* highestSound = nullptr;

    void include(int key, const Sound& sound)
    {
        if (key < lowest) {
            lowest = key;
            lowestSound = &sound;
        }
        if (key > highest) {
            highest = key;
            highestSound = &sound;
        }
    }
};

std::vector<std::filesystem::path> pathsOf(const Organ& organ)
{
    std::vector<std::filesystem::path> result;
    for (const Organ::File& file : organ.files)
        result.push_back(file.path);
    return result;
}

/// Returns the index of the last pipe of each rank.
std::map<std::size_t, std::size_t> lastPipes(const Organ& organ)
{
    std::map<std::size_t, std::size_t> result;
    for (std::size_t i = 0; i < organ.pipes.size(); ++i)
        result[organ.pipes[i].rank] = i;
    return result;
}

/// Assigns the sounds of an organ to its keys, pipe by pipe.
class Loading {
public:
    Loading(const Organ& organ, Import& import)
        : organ_(organ), import_(import), loader_(pathsOf(organ), import.decoding())
    {
    }

    // See docs/decisions.md, 60.
    void load(const Organ::Pipe& pipe)
    {
        const Sound* sound = soundOf(*pipe.file);
        if (sound == nullptr)
            return;
        InstrumentStop& stop = import_.instrument->stops().at(pipe.stop);
        const auto key = static_cast<std::size_t>(pipe.key);
        // See docs/decisions.md, 31.
        stop.samples.at(key).setBuffer(*sound, equal.getPitch(key));
        stop.extended.reset(key);
        compasses_[pipe.rank].include(pipe.key, *sound);
        // See docs/decisions.md, 58.
        import_.instrument->usage += sound->size();
        ++import_.report.pipes;
    }

    /// Extends the outermost pipes of the rank to the keys beyond them. `last` is its last pipe.
    /// See docs/decisions.md, 59.
    void extend(const Organ::Pipe& last)
    {
        const Compass& compass = compasses_[last.rank];
        if (compass.lowestSound != nullptr)
            extend(last.stop, 0, compass.lowest, *compass.lowestSound, compass.lowest);
        if (compass.highestSound != nullptr)
            extend(last.stop, compass.highest + 1, static_cast<int>(kKeys), *compass.highestSound,
                   compass.highest);
    }

private:
    void extend(std::size_t stop, int begin, int end, const Sound& sound, int root)
    {
        for (int key = begin; key < end; ++key)
            import_.instrument->stops().at(stop).extend(
                key, sound, equal.getPitch(static_cast<std::size_t>(root)));
    }

    /// Returns null if the file cannot be decoded.
    const Sound* soundOf(std::size_t index)
    {
        if (index == sounds_.size())
            sounds_.push_back(nextSound());
        return sounds_[index];
    }

    const Sound* nextSound()
    {
        const Organ::File& file = organ_.files[sounds_.size()];
        try {
            auto sound = std::make_unique<Sound>(import_.instrument->renderer(), loader_.next());
            ++import_.report.samples;
            return (import_.instrument->sounds[file.name] = std::move(sound)).get();
        } catch (const FormatError& error) {
            // See docs/decisions.md, 54.
            import_.report.skipped.emplace_back(file.path.string(), error.what());
            return nullptr;
        }
    }

    const Organ& organ_;
    Import& import_;
    SoundLoader loader_;
    std::vector<const Sound*> sounds_; ///< By file; null for files that cannot be decoded.
    std::map<std::size_t, Compass> compasses_;
};

} // namespace

void loadOrgan(const Organ& organ, Import& import)
{
    if (organ.files.empty())
        throw FormatError("cannot be played: no pipe has a sample file");

    for (const std::string& name : organ.stops)
        import.instrument->appendStop(name);
    import.report.skipped = organ.skipped;

    const auto steps = static_cast<long>(organ.pipes.size());
    const long step = steps / organ.updates + 1;
    import.host.startProgress(steps);
    Loading loading(organ, import);
    const auto last = lastPipes(organ);
    for (std::size_t i = 0; i < organ.pipes.size(); ++i) {
        if (import.host.isCancelled())
            throw Cancelled{};
        const Organ::Pipe& pipe = organ.pipes[i];
        if (pipe.file)
            loading.load(pipe);
        if (last.at(pipe.rank) == i)
            loading.extend(pipe);
        if (static_cast<long>(i + 1) % step == 0)
            import.host.updateProgress(static_cast<unsigned>(step), pipe.text);
    }
    // See docs/decisions.md, 75.
    import.host.updateProgress(static_cast<unsigned>(steps % step), organ.doneText);
    if (import.report.samples == 0) {
        const auto& [file, reason] = import.report.skipped.back();
        throw FormatError("cannot be played: none of the " + std::to_string(organ.files.size()) +
                          " sample files can be decoded, for example " + file + ": " + reason);
    }
    import.finish();
}

} // namespace velmora
