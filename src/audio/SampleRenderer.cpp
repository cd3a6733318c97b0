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

std::size_t usefulDevices()
{
    return std::min<std::size_t>(std::max(std::thread::hardware_concurrency(), 1U),
                                 kMaximumDevices);
}

} // namespace

SampleRenderer::SampleRenderer() : rate_(kFirstRate), queue_(kQueued), pending_(kQueued)
{
    busy_.reserve(kMaximumDevices);
    for (std::atomic<float>& gain : swells_)
        gain = 1.0F;
}

std::uint32_t SampleRenderer::emptiestDevice()
{
    if (!isReserved_ && devices_.size() < usefulDevices() &&
        sounds_++ >= devices_.size() * kSoundsPerDevice)
        openDevice();
    const auto emptiest = std::ranges::min_element(
        devices_, {}, [](const auto& device) { return device->sources().bytes; });
    return static_cast<std::uint32_t>(emptiest - devices_.begin());
}

bool SampleRenderer::openDevice()
{
    auto device = OpenALDevice::open(rate_);
    if (!device) {
        if (devices_.empty())
            throw FormatError("there is no OpenAL device to play sampled instruments with");
        return false;
    }
    devices_.push_back(std::make_unique<SampleVoices>(std::move(device), rate_));
    return true;
}

void SampleRenderer::reserve(std::size_t sounds, std::size_t bytes)
{
    const std::size_t wanted =
        std::clamp<std::size_t>(sounds / kSoundsPerDevice + 1, 1, usefulDevices());
    while (devices_.size() < wanted && openDevice()) {
    }
    for (const auto& device : devices_)
        device->sources().reserve(bytes / devices_.size());
    isReserved_ = true;
    prepare();
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

void SampleRenderer::start(SampleId sample, float gain, float pitch, std::uint8_t swell)
{
    send({SampleEvent::Kind::Start, sample, gain, pitch, swell, due_});
}

void SampleRenderer::release(SampleId sample, std::span<const FollowingSound> following)
{
    send({SampleEvent::Kind::Release, sample, 0.0F, 1.0F, 0, due_, 0, following});
}

void SampleRenderer::cut(SampleId sample)
{
    send({SampleEvent::Kind::Cut, sample, 0.0F, 1.0F, 0, due_});
}

void SampleRenderer::setPitch(SampleId sample, float pitch,
                              std::span<const FollowingSound> following)
{
    if (glide_.movesSounding)
        send(
            {SampleEvent::Kind::Pitch, sample, 0.0F, pitch, 0, due_, 0, following, glide_.seconds});
}

void SampleRenderer::bend(float pitch)
{
    bend_ = pitch;
    send({SampleEvent::Kind::Bend, SampleEvent::kAll, 0.0F, pitch, 0, due_});
}

void SampleRenderer::setSwell(std::uint8_t swell, float gain)
{
    swells_[swell] = gain;
    send({SampleEvent::Kind::Swell, SampleEvent::kAll, gain, 1.0F, swell, due_});
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

void SampleRenderer::receive()
{
    if (isOverrun_.exchange(false))
        endAfterOverrun();
    for (; queue_.front() != nullptr && !pending_.isFull(); queue_.pop())
        take(*queue_.front());
}

// See docs/decisions.md, 130.
void SampleRenderer::endAfterOverrun()
{
    pending_.clear();
    while (queue_.front() != nullptr)
        queue_.pop();
    take({});
    take({SampleEvent::Kind::Bend, SampleEvent::kAll, 0.0F, bend_});
    for (std::size_t i = 0; i < kSwells; ++i)
        take({SampleEvent::Kind::Swell, SampleEvent::kAll, swells_[i], 1.0F,
              static_cast<std::uint8_t>(i)});
}

void SampleRenderer::take(const SampleEvent& event)
{
    SampleEvent taken = event;
    if (event.kind == SampleEvent::Kind::End)
        pending_.removeIf([](const SampleEvent& one) {
            return one.kind != SampleEvent::Kind::Bend && one.kind != SampleEvent::Kind::Swell;
        });
    else if (event.id.device != SampleEvent::kAll.device)
        taken.due = device(event.id.device).order(event.id.number, event.due);
    pending_.add(taken);
}

void SampleRenderer::renderBlock(float* left, float* right, std::size_t frames, double start)
{
    const std::span<const SampleEvent> events = pending_.find(frames, start, rate_, kGrid);
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
    pending_.removeFirst(events.size());

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

} // namespace velmora
