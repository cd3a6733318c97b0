#include "app/tuningCorrections.h"

#include "audio/SoundFontBank.h"
#include "audio/measureTuning.h"
#include "base/File.h"
#include "base/Log.h"
#include "platform/quiet.h"
#include "platform/writeFile.h"
#include "sound/MIDIInstrument.h"

#include <QCryptographicHash>
#include <QFile>
#include <QStandardPaths>
#include <nlohmann/json.hpp>
#include <spdlog/fmt/fmt.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <mutex>
#include <tuple>

namespace velmora {

namespace {

/// To be raised whenever the same bank would be measured differently.
constexpr int kMeasuringVersion = 3;

/// Corrections are never greater, in cents.
constexpr float kGreatest = 50.0F;

std::string hashOfContents(const std::filesystem::path& path)
{
    QFile file(QFile::decodeName(path.c_str()));
    QCryptographicHash hash(QCryptographicHash::Sha1);
    if (!file.open(QIODevice::ReadOnly) || !hash.addData(&file))
        throw std::runtime_error("cannot be read");
    return hash.result().toHex().toStdString();
}

/// Returns the hash of a file, which is computed again only if the file has changed.
std::string hashOf(const std::filesystem::path& path)
{
    using Key = std::tuple<std::filesystem::path, std::filesystem::file_time_type, std::uintmax_t>;
    static std::mutex mutex;
    static std::map<Key, std::string> known;
    const std::lock_guard lock(mutex);
    std::string& hash =
        known[{path, std::filesystem::last_write_time(path), std::filesystem::file_size(path)}];
    if (hash.empty())
        hash = hashOfContents(path);
    return hash;
}

std::filesystem::path cachedFile(const BankProgram& program)
{
    const std::filesystem::path folder =
        QFile::encodeName(QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation))
            .toStdString();
    return folder / "velmora" / "tuning" /
           fmt::format("{}-{}-{}.json", hashOf(program.file), program.bank, program.number);
}

/// Returns what a file of the cache holds, or nothing if it is missing, old or damaged.
std::optional<KeyCorrections> readCached(const std::filesystem::path& path)
{
    std::error_code error;
    if (!std::filesystem::exists(path, error))
        return std::nullopt;
    try {
        const nlohmann::json json = nlohmann::json::parse(readTextFile(path));
        const auto corrections = json.at("cents").get<std::vector<float>>();
        KeyCorrections result{};
        const bool isWhole =
            json.at("version") == kMeasuringVersion && corrections.size() == result.size() &&
            std::ranges::all_of(corrections, [](float c) { return std::fabs(c) <= kGreatest; });
        if (!isWhole)
            return std::nullopt;
        std::ranges::copy(corrections, result.begin());
        return result;
    } catch (const std::exception&) {
        return std::nullopt; // it is measured again
    }
}

void writeCached(const KeyCorrections& corrections, const std::filesystem::path& path)
{
    std::error_code error;
    std::filesystem::create_directories(path.parent_path(), error);
    try {
        writeFile(path,
                  nlohmann::json{{"version", kMeasuringVersion}, {"cents", corrections}}.dump());
    } catch (const std::runtime_error& failure) {
        logger("app").warn("{}", failure.what());
    }
}

} // namespace

std::vector<PitchedProgram> pitchedPrograms(const Instrument& instrument,
                                            const std::filesystem::path& file)
{
    const auto* player = dynamic_cast<const MIDIInstrument*>(&instrument);
    std::vector<PitchedProgram> pitched;
    if (file.empty() || player == nullptr)
        return pitched;
    for (const std::size_t position : player->playedPrograms())
        if (const Program& program = instrument.programs()[position]; !program.isPercussion)
            pitched.push_back({position, {file, program.bank, program.number}});
    return pitched;
}

std::optional<KeyCorrections> correctionsFor(const BankProgram& program,
                                             const std::function<bool()>& isCancelled)
{
    try {
        const auto path = cachedFile(program);
        if (auto known = readCached(path))
            return known;
        quietSoundLibraries();
        const SoundFontBank bank(program.file);
        auto measured = measureTuning(bank, program.bank, program.number, isCancelled);
        if (measured)
            writeCached(*measured, path);
        return measured;
    } catch (const std::exception& error) {
        logger("app").warn("{}: the tuning cannot be measured: {}", program.file.string(),
                           error.what());
        return std::nullopt;
    }
}

void correctTuning(Instrument& instrument, const std::filesystem::path& file)
{
    for (const auto& [position, program] : pitchedPrograms(instrument, file))
        if (const auto corrections = correctionsFor(program, [] { return false; }))
            dynamic_cast<MIDIInstrument&>(instrument).setCorrections(position, *corrections);
}

} // namespace velmora
