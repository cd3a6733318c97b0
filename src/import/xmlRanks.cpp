#include "import/xmlRanks.h"

#include "base/Text.h"

#include <spdlog/fmt/fmt.h>

#include <algorithm>
#include <cmath>
#include <map>

namespace velmora {

namespace {

constexpr OrganColumn kOrganLevel{"AudioOut_AmplitudeLevelAdjustDecibels", "b1"};

constexpr OrganColumn kRankId{"RankID", "a"};
constexpr OrganColumn kRankName{"Name", "b"};

constexpr OrganColumn kPipeId{"PipeID", "a"};
constexpr OrganColumn kPipeRank{"RankID", "b"};
constexpr OrganColumn kPipeNote{"NormalMIDINoteNumber", "d"};
constexpr OrganColumn kPipeHarmonic{"Pitch_Tempered_RankBasePitch64ftHarmonicNum", "f"};
constexpr int kDefaultNote = 60;

constexpr OrganColumn kLayerId{"LayerID", "a"};
constexpr OrganColumn kLayerPipe{"PipeID", "b"};
constexpr OrganColumn kLayerNumber{"PipeLayerNumber", "c"};
constexpr OrganColumn kLayerSustains{"Main_Sustaining", "d"};
constexpr OrganColumn kLayerLevel{"AmpLvl_LevelAdjustDecibels", "h"};
constexpr OrganColumn kLayerDetuning{"PitchLvl_DetuningPercentSemitones", "t"};

// Attacks and releases share these columns.
constexpr OrganColumn kTakeId{"UniqueID", "a"};
constexpr OrganColumn kTakeLayer{"LayerID", "b"};
constexpr OrganColumn kTakeSample{"SampleID", "c"};

constexpr OrganColumn kAttackVelocity{"AttackSelCriteria_HighestVelocity", "h"};
constexpr OrganColumn kAttackRest{"AttackSelCriteria_MinTimeSincePrevPipeCloseMs", "i"};
constexpr OrganColumn kAttackControl{"AttackSelCriteria_HighestCtsCtrlValue", "j"};

constexpr OrganColumn kReleaseTime{"ReleaseSelCriteria_LatestKeyReleaseTimeMs", "q"};
constexpr OrganColumn kReleaseControl{"ReleaseSelCriteria_HighestCtsCtrlValue", "r"};
constexpr OrganColumn kReleaseAttack{"ReleaseSelCriteria_PreferThisRelForAttackID", "s"};
constexpr int kAnyTime = 99999; ///< Milliseconds that stand for no limit.

constexpr OrganColumn kEnclosureId{"EnclosureID", "a"};
constexpr OrganColumn kEnclosedPipe{"PipeID", "b"};

/// The highest velocity and the highest value of a control.
constexpr int kHighest = 127;

std::unordered_map<int, std::vector<OrganRow>> groupedBy(const std::vector<OrganRow>& rows,
                                                         const OrganColumn& column)
{
    std::unordered_map<int, std::vector<OrganRow>> result;
    for (const OrganRow& row : rows)
        result[row.id(column)].push_back(row);
    return result;
}

const std::vector<OrganRow>& rowsOf(const std::unordered_map<int, std::vector<OrganRow>>& groups,
                                    int id)
{
    static const std::vector<OrganRow> none;
    const auto found = groups.find(id);
    return found == groups.end() ? none : found->second;
}

/// Returns the rows for the lowest value of a control, at which a tremulant does not move.
std::vector<OrganRow> atRest(const std::vector<OrganRow>& rows, const OrganColumn& column)
{
    int lowest = kHighest;
    for (const OrganRow& row : rows)
        lowest = std::min(lowest, row.integer(column).value_or(kHighest));
    std::vector<OrganRow> result;
    for (const OrganRow& row : rows) {
        if (row.integer(column).value_or(kHighest) == lowest)
            result.push_back(row);
    }
    return result;
}

double linearGain(double decibels)
{
    return std::pow(10.0, std::clamp(decibels, -96.0, 40.0) / 20.0);
}

} // namespace

XmlRanks::XmlRanks(const OrganTables& tables, OrganPackages& packages)
    : tables_(tables), packages_(packages),
      pipes_(groupedBy(tables.rows("Pipe_SoundEngine01"), kPipeRank)),
      layers_(groupedBy(tables.rows("Pipe_SoundEngine01_Layer"), kLayerPipe)),
      attacks_(groupedBy(tables.rows("Pipe_SoundEngine01_AttackSample"), kTakeLayer)),
      releases_(groupedBy(tables.rows("Pipe_SoundEngine01_ReleaseSample"), kTakeLayer))
{
    for (const OrganRow& general : tables.rows("_General"))
        organDecibels_ = general.number(kOrganLevel).value_or(0.0);
    for (const OrganRow& row : tables.rows("Pipe_SoundEngine01")) {
        const int rank = row.id(kPipeRank);
        if (std::ranges::find(ids_, rank) == ids_.end())
            ids_.push_back(rank);
    }
}

std::string XmlRanks::name(int rank) const
{
    for (const OrganRow& row : tables_.rows("Rank")) {
        if (row.id(kRankId) == rank)
            return row.text(kRankName);
    }
    return {};
}

int XmlRanks::enclosure(int rank) const
{
    const Rows& pipes = rowsOf(pipes_, rank);
    for (const OrganRow& row : tables_.rows("EnclosurePipe")) {
        if (!pipes.empty() && row.id(kEnclosedPipe) == pipes.front().id(kPipeId))
            return row.id(kEnclosureId);
    }
    return 0;
}

PipeOrgan::Rank XmlRanks::read(int rank)
{
    PipeOrgan::Rank result;
    result.name = name(rank);
    for (const OrganRow& row : rowsOf(pipes_, rank)) {
        const auto skip = [&](const std::string& why) {
            skipped_.emplace_back(fmt::format("{}, pipe {}", result.name, row.id(kPipeId)), why);
        };
        const int note = row.integer(kPipeNote).value_or(kDefaultNote);
        const OrganRow* layer = layerOf(row);
        if (note < 0 || note > kLastKey) {
            skip(fmt::format("is for MIDI note {}, which is outside 0 to 127", note));
        } else if (layer == nullptr) {
            skip("has no sample file");
        } else if (PipeOrgan::Pipe pipe = pipeOf(row, *layer); !pipe.attacks.empty()) {
            pipe.key = note;
            result.pipes.push_back(std::move(pipe));
        }
    }
    return result;
}

/// Returns the first layer of a pipe that has an attack; the others are noises and modulations.
const OrganRow* XmlRanks::layerOf(const OrganRow& pipe) const
{
    const OrganRow* result = nullptr;
    int lowest = 0;
    for (const OrganRow& layer : rowsOf(layers_, pipe.id(kPipeId))) {
        const int number = layer.integer(kLayerNumber).value_or(1);
        if (!attacks_.contains(layer.id(kLayerId)) || (result != nullptr && number >= lowest))
            continue;
        result = &layer;
        lowest = number;
    }
    return result;
}

PipeOrgan::Pipe XmlRanks::pipeOf(const OrganRow& row, const OrganRow& layer)
{
    PipeOrgan::Pipe pipe;
    pipe.key = row.integer(kPipeNote).value_or(kDefaultNote);
    pipe.gain =
        static_cast<float>(linearGain(organDecibels_ + layer.number(kLayerLevel).value_or(0.0)));
    pipe.cents = layer.number(kLayerDetuning).value_or(0.0);
    pipe.isPercussive = !layer.flag(kLayerSustains, true);
    const auto attacks = attacksOf(layer.id(kLayerId));
    for (const Chosen& chosen : attacks)
        pipe.attacks.push_back(chosen.attack);
    if (attacks.empty())
        return pipe;
    pipe.harmonicNumber = attacks.front().sample.harmonicNumber;
    if (const auto harmonic = row.number(kPipeHarmonic); harmonic && *harmonic > 0.0)
        pipe.harmonicNumber = *harmonic;
    tune(pipe, attacks.front().sample);
    addReleases(layer.id(kLayerId), attacks, pipe);
    return pipe;
}

void XmlRanks::tune(PipeOrgan::Pipe& pipe, const OrganPackages::Sample& sample) const
{
    if (sample.note)
        pipe.retuning = 100.0 * (pipe.key - *sample.note) +
                        1200.0 * std::log2(pipe.harmonicNumber / sample.harmonicNumber);
}

/// Chooses the attacks of a layer, one for each range of velocities.
std::vector<XmlRanks::Chosen> XmlRanks::attacksOf(int layer)
{
    struct Candidate {
        Chosen chosen;
        int rest = 0;
    };
    std::map<int, std::vector<Candidate>> candidates; // by the highest velocity
    for (const OrganRow& row : atRest(rowsOf(attacks_, layer), kAttackControl)) {
        const int sampleId = row.id(kTakeSample);
        if (const auto sample = packages_.find(sampleId))
            candidates[row.integer(kAttackVelocity).value_or(kHighest)].push_back(
                {{row.id(kTakeId), sampleId, *sample, {}}, row.integer(kAttackRest).value_or(0)});
    }
    std::vector<Chosen> result;
    float softest = 0.0F;
    for (auto& [velocity, same] : candidates) {
        // The pipe has been at rest for long. Of equal ones the first is the usual one.
        const auto best = std::ranges::min_element(same, {}, [](const Candidate& one) {
            return std::pair(one.chosen.sample.isTremulant, -one.rest);
        });
        Chosen& chosen = result.emplace_back(std::move(best->chosen));
        chosen.attack.file = chosen.sample.file;
        chosen.attack.hertz = chosen.sample.hertz;
        chosen.attack.softest = softest;
        softest = (static_cast<float>(velocity) + 0.5F) / kHighest;
        chosen.attack.loudest = std::min(softest, 1.0F);
    }
    return result;
}

void XmlRanks::addReleases(int layer, const std::vector<Chosen>& attacks, PipeOrgan::Pipe& pipe)
{
    const Rows& all = rowsOf(releases_, layer);
    if (all.empty())
        return;
    for (PipeOrgan::Attack& attack : pipe.attacks)
        attack.hasOwnRelease = false;
    for (const OrganRow& row : atRest(all, kReleaseControl)) {
        const int wanted = row.id(kReleaseAttack);
        const auto isWanted = [&](const Chosen& one) { return one.id == wanted; };
        if (wanted != 0 && std::ranges::none_of(attacks, isWanted))
            continue;
        const int milliseconds = row.integer(kReleaseTime).value_or(kAnyTime);
        const int sampleId = row.id(kTakeSample);
        const auto own = std::ranges::find(attacks, sampleId, &Chosen::sampleId);
        if (own != attacks.end() && milliseconds >= kAnyTime) {
            pipe.attacks[static_cast<std::size_t>(own - attacks.begin())].hasOwnRelease = true;
            continue;
        }
        const auto sample = packages_.find(sampleId);
        if (!sample)
            continue;
        PipeOrgan::Release& release = pipe.releases.emplace_back();
        release.file = sample->file;
        release.hertz = sample->hertz;
        if (milliseconds < kAnyTime)
            release.longestHeld = std::max(milliseconds, 0) / 1000.0;
    }
}

} // namespace velmora
