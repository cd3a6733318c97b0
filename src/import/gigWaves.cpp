#include "import/gigWaves.h"

#include "audio/AudioFileDecoder.h"
#include "base/FormatError.h"
#include "import/Import.h"
#include "import/RIFF.h"
#include "import/bank.h"
#include "import/sampleChunks.h"

#include <spdlog/fmt/fmt.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <span>
#include <string>
#include <unordered_map>

namespace velmora {

namespace gig {

namespace {

using RIFF::code;

/// Returns the waves in the order of the table of the bank, or without a table in that of the file.
/// Waves of another file are null.
std::vector<const RIFF::List*> wavesOf(const RIFF::File& file)
{
    const auto& pool = bank::require<RIFF::List>(file, "wvpl");
    auto waves = pool.all<RIFF::List>(code("wave"));
    const auto* table = file.get<RIFF::Chunk>(code("ptbl"));
    const auto words = table ? table->read<std::uint32_t>() : std::vector<std::uint32_t>();
    if (words.size() < 2)
        return waves;
    constexpr std::uint32_t kListHead = 12;
    std::unordered_map<std::uint32_t, const RIFF::List*> byOffset;
    for (const RIFF::List* wave : waves)
        if (wave != nullptr)
            byOffset[wave->offset() - kListHead - pool.offset()] = wave;
    const std::size_t head = words[0] / sizeof(words[0]);
    const std::size_t count = words[1];
    if (head < 2 || head > words.size() || count == 0)
        return waves;
    // Banks of several files also give the number of the file.
    const std::size_t width = (words.size() - head) / 2 >= count ? 2 : 1;
    std::vector<const RIFF::List*> ordered;
    for (std::size_t at = head; ordered.size() < count && at + width <= words.size(); at += width) {
        const auto found = byOffset.find(words[at]);
        const bool isHere = found != byOffset.end() && (width == 1 || words[at + 1] == 0);
        ordered.push_back(isHere ? found->second : nullptr);
    }
    return ordered;
}

/// Returns a WAVE file in memory that has the given content.
std::vector<std::byte> waveFile(std::uint32_t size)
{
    const std::array<std::uint32_t, 3> head{code("RIFF"), size, code("WAVE")};
    const auto bytes = std::as_bytes(std::span(head));
    return {bytes.begin(), bytes.end()};
}

/// Makes one sound of two that are its sides. Throws FormatError if they do not belong together.
Pcm interleaved(const Pcm& left, const Pcm& right)
{
    if (left.channels != 1 || right.channels != 1 || left.rate != right.rate ||
        left.floats.empty() != right.floats.empty())
        throw FormatError("its two sides do not belong together");
    Pcm both;
    both.channels = 2;
    both.rate = left.rate;
    const auto merge = [](const auto& one, const auto& other, auto& result) {
        result.resize(2 * std::max(one.size(), other.size()));
        for (std::size_t i = 0; i < one.size(); ++i)
            result[2 * i] = one[i];
        for (std::size_t i = 0; i < other.size(); ++i)
            result[2 * i + 1] = other[i];
    };
    merge(left.samples, right.samples, both.samples);
    merge(left.floats, right.floats, both.floats);
    return both;
}

} // namespace

Waves::Waves(const RIFF::File& file, Import& import) : waves_(wavesOf(file)), import_(import) {}

Tuning Waves::tuningOf(const Recording& recording) const
{
    if (recording.tuning)
        return *recording.tuning;
    const RIFF::List* wave = find(recording.wave);
    if (wave == nullptr)
        return {};
    if (const auto tuning = readTuning(*wave))
        return *tuning;
    Tuning tuning;
    if (const auto* sampler = wave->get<RIFF::Chunk>(code("smpl"))) {
        constexpr std::uint32_t kHeads = 12; // behind the size
        auto image = waveFile(kHeads + sampler->length());
        const std::array<std::uint32_t, 2> head{code("smpl"), sampler->length()};
        std::ranges::copy(std::as_bytes(std::span(head)), std::back_inserter(image));
        const auto content = sampler->read<std::byte>();
        image.insert(image.end(), content.begin(), content.end());
        const SampleChunks chunks = readSampleChunks(image);
        tuning.root = chunks.note.value_or(tuning.root);
        for (const auto& loop : chunks.loops)
            tuning.loops.push_back({loop.begin, loop.end});
    }
    return tuning;
}

const BankSound* Waves::get(const Recording& recording, const Tuning& tuning, const Sound* beside)
{
    std::vector<std::pair<std::uint32_t, std::uint32_t>> loops;
    for (const Loop& loop : tuning.loops)
        loops.emplace_back(loop.begin, loop.end);
    const auto [found, isNew] =
        loaded_.try_emplace(Place(recording.wave, recording.right, std::move(loops)));
    if (isNew) {
        try {
            found->second = load(recording, tuning, beside);
        } catch (const FormatError& error) {
            import_.report.skipped.emplace_back(fmt::format("wave {}", recording.wave),
                                                error.what());
        }
    }
    return found->second ? &*found->second : nullptr;
}

const RIFF::List* Waves::find(std::uint32_t index) const
{
    return index < waves_.size() ? waves_[index] : nullptr;
}

Pcm Waves::decode(std::uint32_t index) const
{
    const RIFF::List* wave = find(index);
    if (wave == nullptr)
        throw FormatError(index < waves_.size() ? "it is in another file of the bank"
                                                : "the bank does not contain it");
    if (wave->get<RIFF::Chunk>(code("ewav")) != nullptr)
        throw FormatError("it is compressed, which cannot be decoded");
    auto image = waveFile(wave->size());
    const std::size_t head = image.size();
    image.resize(head + wave->length());
    image.resize(head + wave->read(0, std::span(image).subspan(head)));
    return decodeAudio(image, import_.decoding());
}

BankSound Waves::load(const Recording& recording, const Tuning& tuning, const Sound* beside)
{
    PipeRecording made;
    made.pcm = decode(recording.wave);
    if (recording.right)
        made.pcm = interleaved(made.pcm, decode(*recording.right));
    made.pitch = hertzOf(tuning.root);
    made.loops = tuning.loops;
    made.hasOwnRelease = false;
    return addBankSound(std::move(made), std::to_string(recording.wave), beside, import_);
}

} // namespace gig

} // namespace velmora
