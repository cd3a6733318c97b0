#include "import/PipeVoice.h"

#include "audio/AudioFileDecoder.h"
#include "audio/measurePitch.h"
#include "base/FormatError.h"
#include "import/pipePitch.h"
#include "import/sampleChunks.h"

#include <cmath>
#include <span>

namespace velmora {

namespace {

/// A sample file in memory.
struct SampleFile {
    Pcm pcm;
    SampleChunks chunks;
};

class VoiceLoading {
public:
    VoiceLoading(const PipeOrgan& organ, const PipeOrgan::Pipe& pipe,
                 const DecodingOptions& options, UnknownPitch unknownPitch)
        : organ_(organ), pipe_(pipe), options_(options), unknownPitch_(unknownPitch)
    {
    }

    PipeVoice load()
    {
        for (std::size_t i = 0; i < pipe_.attacks.size(); ++i)
            tryFile(pipe_.attacks[i].file, [&](SampleFile file) { addAttack(i, std::move(file)); });
        for (std::size_t i = 0; i < pipe_.releases.size() && !voice_.attacks.empty(); ++i)
            tryFile(pipe_.releases[i].file,
                    [&](SampleFile file) { addRelease(i, std::move(file)); });
        return std::move(voice_);
    }

private:
    /// Decodes a file and gives it to `use`, or notes why it cannot be used.
    template <class Use> void tryFile(std::size_t index, const Use& use)
    try {
        const std::vector<std::byte> bytes = organ_.tree->read(organ_.files[index]);
        use({decodeAudio(bytes, options_), readSampleChunks(bytes)});
    } catch (const FormatError& error) {
        voice_.skipped.emplace_back(index, error.what());
    }

    void addAttack(std::size_t index, SampleFile file)
    {
        const PipeOrgan::Attack& attack = pipe_.attacks[index];
        if (unknownPitch_ == UnknownPitch::Measured && !attack.hertz && !pipe_.hertz &&
            !pipe_.isPercussive && !file.chunks.note)
            file.chunks.note = measuredNote(file.pcm);
        PipeRecording recording;
        recording.pcm = std::move(file.pcm);
        recording.pitch = hertzOf(attack.hertz, file.chunks);
        recording.hasOwnRelease = attack.hasOwnRelease && !pipe_.isPercussive;
        recording.cue = attack.cue ? attack.cue : file.chunks.cue;
        if (!pipe_.isPercussive)
            recording.loops = attack.loops.empty() ? file.chunks.loops : attack.loops;
        const double hertz = recording.pitch;
        PipeSound sound = makePipeSound(std::move(recording));
        std::shared_ptr<const ReleaseAlignment> alignment;
        if (sound.release.size() > 0)
            alignment =
                std::make_shared<ReleaseAlignment>(sound.attack, hertz, sound.release, hertz);
        voice_.attacks.push_back({index, std::move(sound), file.chunks.note, std::move(alignment)});
        hertz_.push_back(hertz);
    }

    /// See docs/decisions.md, 182.
    std::optional<double> measuredNote(const Pcm& pcm) const
    {
        const double expected = expectedNote(pipe_);
        const auto pitch = measurePitch(pcm, hertzOfNote(expected));
        if (!pitch || pitch->swing > kBeatingSwing)
            return std::nullopt;
        return expected + 12.0 * std::log2(pitch->hertz / hertzOfNote(expected));
    }

    void addRelease(std::size_t index, SampleFile file)
    {
        const PipeOrgan::Release& described = pipe_.releases[index];
        const auto& cue = described.cue;
        const bool isKnown = described.hertz || pipe_.hertz || file.chunks.note;
        const double hertz = isKnown ? hertzOf(described.hertz, file.chunks) : hertz_.front();
        PipeVoice::Release& release = voice_.releases.emplace_back();
        release.index = index;
        release.note = file.chunks.note;
        release.sound = makeReleaseSound(std::move(file.pcm), cue ? cue : file.chunks.cue);
        for (std::size_t i = 0; i < voice_.attacks.size(); ++i)
            release.alignments.push_back(std::make_shared<ReleaseAlignment>(
                voice_.attacks[i].sound.attack, hertz_[i], release.sound, hertz));
    }

    /// About how a recording sounds. The other pipes of the rank are not known here.
    double hertzOf(const std::optional<double>& hertz, const SampleChunks& chunks) const
    {
        if (hertz || pipe_.hertz)
            return hertz ? *hertz : *pipe_.hertz;
        const double expected = expectedNote(pipe_);
        // A fraction was measured, even if the organ is not at the pitch of today.
        if (chunks.note && *chunks.note != std::floor(*chunks.note) &&
            std::abs(*chunks.note - expected) <= kFarthestOffset)
            return hertzOfNote(*chunks.note);
        const RecordedPitch recorded{expected, chunks.note, pipe_.harmonicNumber};
        return hertzOfNote(RankPitch(std::span(&recorded, 1)).noteOf(recorded));
    }

    const PipeOrgan& organ_;
    const PipeOrgan::Pipe& pipe_;
    const DecodingOptions& options_;
    const UnknownPitch unknownPitch_;
    PipeVoice voice_;
    std::vector<double> hertz_; ///< Of the attacks.
};

} // namespace

std::size_t PipeVoice::bytes() const
{
    std::size_t result = 0;
    for (const Attack& attack : attacks)
        result += attack.sound.attack.bytes() + attack.sound.release.bytes();
    for (const Release& release : releases)
        result += release.sound.bytes();
    return result;
}

PipeVoice loadPipeVoice(const PipeOrgan& organ, const PipeOrgan::Pipe& pipe,
                        const DecodingOptions& options, UnknownPitch unknownPitch)
{
    return VoiceLoading(organ, pipe, options, unknownPitch).load();
}

} // namespace velmora
