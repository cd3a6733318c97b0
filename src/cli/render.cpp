#include "cli/commands.h"

#include "platform/AudioFileWriter.h"
#include "platform/Synthesizer.h"

#include <spdlog/fmt/fmt.h>
#include <unistd.h>

#include <cstdio>

namespace {

/// Shows the progress on standard error, where that is a terminal.
class ProgressLine {
public:
    void show(double done)
    {
        const int percent = static_cast<int>(done * 100.0);
        if (!isTerminal_ || percent == shown_)
            return;
        shown_ = percent;
        fmt::print(stderr, "\rRendering {:3} %{}", percent, percent == 100 ? "\n" : "");
        std::fflush(stderr);
    }

private:
    bool isTerminal_ = isatty(STDERR_FILENO) == 1;
    int shown_ = -1;
};

} // namespace

void render(const std::filesystem::path& sequence, const std::filesystem::path& output,
            const Selection& selection, const RenderOptions& options)
{
    auto synthesizer = std::make_unique<Synthesizer>(options.rate, generalMidiBanks());
    Synthesizer& source = *synthesizer;
    if (source.bank().empty())
        throw std::runtime_error("there is no SoundFont for the General MIDI synthesizer: install "
                                 "the package timgm6mb-soundfont");
    AppDelegate application;
    application.makeBuiltinTunings();
    application.makeMIDIPlayer(std::move(synthesizer));
    select(selection, application);

    SequenceRenderer renderer(application, source, sequence);
    if (!renderer.errorString().empty())
        throw std::runtime_error(renderer.errorString());
    AudioFileWriter file(output, options.rate);
    ProgressLine progress;
    renderer.render(
        options,
        [&](const float* left, const float* right, std::size_t frames) {
            file.write(left, right, frames);
        },
        [&](double done) {
            progress.show(done);
            return true;
        });
    file.commit();
}
