#include "app/SequenceRenderer.h"

#include "sequencer/SequenceTime.h"

#include <algorithm>

namespace velmora {

namespace {

constexpr double kFadeSeconds = std::chrono::duration<double>(kFadeInterval).count();
constexpr std::size_t kTicksPerReport = 64;

} // namespace

SequenceRenderer::SequenceRenderer(Player& player, AudioSource& source, Reading reading)
    : player_(player), source_(source), document_(player, reading, [this] { return now_; })
{
}

bool SequenceRenderer::render(const RenderOptions& options, const AudioSink& sink,
                              const RenderProgress& progress)
{
    Transport& transport = document_.transport();
    const double begin = options.loop ? options.loop->start : 0.0;
    const double end = options.loop ? options.loop->end : transport.extent();
    const double length = end > begin ? end - begin : 1.0; // an empty sequence has no length
    const int times = options.loop ? options.loop->times : 1;
    if (options.loop)
        transport.selectInterval(begin, end);
    transport.setSpeed(options.speed);
    transport.setLoop(times > 1);
    player_.setHeard(options.voices);

    int played = 0;
    transport.play();
    while (transport.mode() == Transport::Mode::Playing) {
        if (ticks_ % kTicksPerReport == 0 &&
            !progress((played + (transport.position() - begin) / length) / times))
            return false;
        soundUntil(static_cast<double>(++ticks_) * kTick.count(), options.rate, sink);
        const double before = transport.position();
        transport.tick();
        // The position goes back only at the end of the loop.
        if (transport.position() <= before)
            transport.setLoop(++played < times - 1);
    }
    soundUntil(now_ + options.tailSeconds, options.rate, sink);
    return progress(1.0);
}

void SequenceRenderer::soundUntil(double seconds, double rate, const AudioSink& sink)
{
    const auto sound = [&](double moment) {
        const std::size_t count = static_cast<std::size_t>(moment * rate) - frames_;
        left_.resize(std::max(left_.size(), count));
        right_.resize(left_.size());
        source_.render(left_.data(), right_.data(), count, AudioSource::kOffline);
        sink(left_.data(), right_.data(), count);
        frames_ += count;
    };
    const auto nextFade = [this] { return static_cast<double>(fades_ + 1) * kFadeSeconds; };
    while (nextFade() <= seconds) {
        sound(nextFade());
        player_.fade();
        ++fades_;
    }
    sound(seconds);
    now_ = seconds;
    player_.setTime(now_);
}

} // namespace velmora
