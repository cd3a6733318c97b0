#include "audio/SampleRenderer.h"

#include "base/FormatError.h"

#include <algorithm>
#include <functional>
#include <thread>

namespace velmora {

namespace {

/// Until an engine sets its own.
constexpr double kFirstRate = 48000.0;

/// More processors help little.
constexpr std::size_t kMaximumDevices = 8;

/// Another device is opened for each so many sounds, because a device takes 15 MB.
constexpr std::size_t kSoundsPerDevice = 64;

constexpr std::size_t kQueued = 1 << 14;

/// Events fall on every fourth frame, because OpenAL mixes four frames at once.
constexpr std::size_t kGrid = 4;

/// Fewer voices are rendered sooner than another thread is woken.
constexpr std::size_t kSharedVoices = 400;

constexpr double kHighLoad = 0.75;
constexpr double kLowLoad = 0.5;

} // namespace

SampleRenderer::SampleRenderer() : rate_(kFirstRate), queue_(kQueued)
{
    pending_.reserve(kQueued + 1); // and the end after an overrun
    busy_.reserve(kMaximumDevices);
}

std::uint32_t SampleRenderer::emptiestDevice()
{
    const std::size_t useful =
        std::min<std::size_t>(std::max(std::thread::hardware_concurrency(), 1U), kMaximumDevices);
    if (devices_.size() < useful && sounds_++ >= devices_.size() * kSoundsPerDevice) {
        auto device = OpenALDevice::open(rate_);
        if (device)
            devices_.push_back(std::make_unique<SampleVoices>(std::move(device), rate_));
        else if (devices_.empty())
            throw FormatError("there is no OpenAL device to play sampled instruments with");
    }
    const auto emptiest =
        std::ranges::min_element(devices_, {}, [](const auto& device) { return device->bytes; });
    return static_cast<std::uint32_t>(emptiest - devices_.begin());
}

void SampleRenderer::prepare()
{
    for (const auto& device : devices_)
        device->prepare();
    if (devices_.size() > 1 && !workers_)
        workers_.emplace(static_cast<unsigned>(devices_.size() - 1));
}

void SampleRenderer::setRate(double rate)
{
    rate_ = rate;
    for (const auto& device : devices_)
        device->setRate(rate);
}

void SampleRenderer::start(SampleId sample, float gain, float pitch)
{
    send({SampleEvent::Kind::Start, sample, gain, pitch, due_});
}

void SampleRenderer::release(SampleId sample)
{
    send({SampleEvent::Kind::Release, sample, 0.0F, 1.0F, due_});
}

void SampleRenderer::setPitch(SampleId sample, float pitch)
{
    send({SampleEvent::Kind::Pitch, sample, 0.0F, pitch, due_});
}

void SampleRenderer::bend(float pitch)
{
    send({SampleEvent::Kind::Bend, SampleEvent::kAll, 0.0F, pitch, due_});
}

void SampleRenderer::end()
{
    send({});
}

void SampleRenderer::send(const SampleEvent& event)
{
    if (!queue_.push(event))
        isOverrun_ = true;
}

void SampleRenderer::render(float* left, float* right, std::size_t frames, double start)
{
    receive();
    for (std::size_t done = 0; done < frames;) {
        const std::size_t length = std::min(SampleVoices::kBlock, frames - done);
        const double moment =
            start == kOffline ? kOffline : start + static_cast<double>(done) / rate_;
        renderBlock(left + done, right + done, length, moment);
        done += length;
    }
}

// See docs/decisions.md, 130.
void SampleRenderer::receive()
{
    const bool isOverrun = isOverrun_.exchange(false);
    if (isOverrun)
        take({});
    while (const SampleEvent* event = queue_.front()) {
        if (pending_.size() >= kQueued)
            break;
        // A bend that is overlooked would leave every key out of tune.
        if (!isOverrun || event->kind == SampleEvent::Kind::Bend)
            take(*event);
        queue_.pop();
    }
}

void SampleRenderer::take(const SampleEvent& event)
{
    SampleEvent taken = event;
    if (event.kind == SampleEvent::Kind::End)
        std::erase_if(pending_,
                      [](const SampleEvent& one) { return one.kind != SampleEvent::Kind::Bend; });
    else if (event.kind != SampleEvent::Kind::Bend)
        taken.due = devices_[event.id.device]->order(event.id.number, event.due);
    const auto place = std::ranges::upper_bound(pending_, taken.due, {}, &SampleEvent::due);
    pending_.insert(place, taken);
}

std::span<const SampleEvent> SampleRenderer::eventsUntil(std::size_t frames, double start)
{
    std::size_t count = 0;
    for (; count < pending_.size(); ++count) {
        SampleEvent& event = pending_[count];
        const double ahead = start == kOffline ? 0.0 : (event.due - start) * rate_;
        if (ahead >= static_cast<double>(frames))
            break;
        event.frame = static_cast<std::size_t>(std::max(ahead, 0.0)) / kGrid * kGrid;
    }
    return std::span(pending_).first(count);
}

void SampleRenderer::renderBlock(float* left, float* right, std::size_t frames, double start)
{
    const std::span<const SampleEvent> events = eventsUntil(frames, start);
    std::size_t voices = events.size();
    busy_.clear();
    for (std::uint32_t i = 0; i < devices_.size(); ++i) {
        voices += devices_[i]->sounding();
        if (devices_[i]->sounding() > 0 ||
            std::ranges::any_of(events, [i](const SampleEvent& event) { return event.isFor(i); }))
            busy_.push_back(i);
    }
    const auto renderOne = [&](std::size_t i) {
        devices_[busy_[i]]->render(events, busy_[i], frames);
    };
    if (workers_ && busy_.size() > 1 && voices >= kSharedVoices) {
        workers_->run(static_cast<std::uint32_t>(busy_.size()), renderOne);
    } else {
        for (std::size_t i = 0; i < busy_.size(); ++i)
            renderOne(i);
    }
    pending_.erase(pending_.begin(), pending_.begin() + static_cast<std::ptrdiff_t>(events.size()));

    std::fill_n(left, frames, 0.0F);
    std::fill_n(right, frames, 0.0F);
    for (const std::uint32_t i : busy_) {
        std::transform(left, left + frames, devices_[i]->left(), left, std::plus{});
        std::transform(right, right + frames, devices_[i]->right(), right, std::plus{});
    }
}

void SampleRenderer::setLoad(double load)
{
    const Relief before = relief();
    Relief relief = load < kLowLoad ? Relief::None : std::min(before, Relief::CheapTails);
    if (load > kHighLoad)
        relief = before == Relief::None ? Relief::CheapTails : Relief::FewerTails;
    relief_.store(relief, std::memory_order_relaxed);
    if (relief == Relief::None && before == Relief::None)
        return;
    for (const auto& device : devices_)
        device->setRelief(relief);
}

std::size_t SampleRenderer::voices() const
{
    std::size_t count = 0;
    for (const auto& device : devices_)
        count += device->sounding();
    return count;
}

std::size_t SampleRenderer::fading() const
{
    std::size_t count = 0;
    for (const auto& device : devices_)
        count += device->fading();
    return count;
}

} // namespace velmora
