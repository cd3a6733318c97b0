#include "import/sf2Bank.h"

#include "base/FormatError.h"
#include "import/RIFF.h"
#include "import/bank.h"

#include <spdlog/fmt/fmt.h>

#include <algorithm>

namespace velmora {

namespace sf2 {

namespace {

template <class Record>
std::vector<Record> readRecords(const RIFF::List& list, const char (&name)[5])
{
    return bank::require<RIFF::Chunk>(list, name).read<Record>();
}

/// Reads records that refer to a range of other records, from their own `index` to that of the next
/// record. Throws FormatError if the indices decrease: the standard calls such a bank corrupt, and
/// a small file of this kind could keep the importer busy for hours.
template <class Record> std::vector<Record>
readRecords(const RIFF::List& list, const char (&name)[5], std::uint16_t Record::*index)
{
    auto records = readRecords<Record>(list, name);
    const auto broken = std::adjacent_find(
        records.begin(), records.end(),
        [index](const auto& one, const auto& next) { return next.*index < one.*index; });
    if (broken != records.end())
        throw FormatError::atByte(bank::require<RIFF::Chunk>(list, name).offset(),
                                  fmt::format("the indices in \"{}\" decrease", name));
    return records;
}

[[noreturn]] void refuse(unsigned version)
{
    throw FormatError(fmt::format("is a SoundFont {} bank with compressed samples; convert it to "
                                  "SoundFont 2",
                                  version));
}

} // namespace

void checkVersion(const RIFF::List& info)
{
    std::uint16_t version = 2;
    if (const auto* chunk = info.get<RIFF::Chunk>(RIFF::code("ifil")))
        chunk->read(0, std::as_writable_bytes(std::span(&version, 1)));
    if (version > 2)
        refuse(version);
}

std::uint64_t bytesOf(std::span<const sfSample> samples, std::uint32_t poolLength)
{
    constexpr std::uint64_t kPoint = sizeof(std::int16_t);
    std::uint64_t points = 0;
    for (const sfSample& sample : samples) {
        const std::uint64_t end = std::min<std::uint64_t>(sample.dwEnd, poolLength / kPoint);
        points += end - std::min<std::uint64_t>(end, sample.dwStart);
    }
    return points * kPoint;
}

Bank readBank(const RIFF::File& file)
{
    file.check();
    const auto& data = bank::require<RIFF::List>(file, "sdta");
    const auto& pool = bank::require<RIFF::Chunk>(data, "smpl");
    const auto& pdta = bank::require<RIFF::List>(file, "pdta");
    const auto& info = bank::require<RIFF::List>(file, "INFO");
    checkVersion(info);
    Bank bank{pool,
              data.get<RIFF::Chunk>(RIFF::code("sm24")),
              readRecords<sfSample>(pdta, "shdr"),
              readRecords(pdta, "inst", &sfInst::wInstBagNdx),
              {},
              {},
              RIFF::readText(info.get<RIFF::Chunk>(RIFF::code("INAM")))};
    if (bank.samples.size() < 2 || bank.instruments.size() < 2)
        throw FormatError("has no instruments");
    bank.bags = readRecords(pdta, "ibag", &sfPresetBag::wGenNdx);
    bank.generators = readRecords<sfInstGenList>(pdta, "igen");
    constexpr std::uint16_t kVorbis = 0x10;
    if (std::ranges::any_of(bank.samples, [](const sfSample& sample) {
            return (sample.sfSampleType & kVorbis) != 0;
        }))
        refuse(3);
    return bank;
}

std::string fieldText(std::span<const char> field)
{
    return {field.begin(), std::find(field.begin(), field.end(), '\0')};
}

} // namespace sf2

} // namespace velmora
