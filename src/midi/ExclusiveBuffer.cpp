#include "midi/ExclusiveBuffer.h"

#include "midi/messages.h"
#include "midi/tuningMessages.h"

#include <algorithm>

namespace velmora {

bool ExclusiveBuffer::isPart(MidiPacket part)
{
    static_assert(kLongestTuningMessage <= decltype(bytes_){}.size());
    const std::uint8_t first = part.front();
    if (first == midi::kSystemExclusive) {
        isOpen_ = true;
        isTooLong_ = false;
        size_ = 0;
        return true;
    }
    if (first < midi::kStatusBit || first == midi::kEscape)
        return isOpen_;
    if (first < midi::kTimingClock)
        isOpen_ = false;
    return false;
}

MidiPacket ExclusiveBuffer::add(MidiPacket part)
{
    isTooLong_ = isTooLong_ || part.size() > bytes_.size() - size_;
    if (!isTooLong_) {
        std::ranges::copy(part, bytes_.begin() + static_cast<std::ptrdiff_t>(size_));
        size_ += part.size();
    }
    isOpen_ = part.back() != midi::kEscape;
    if (isOpen_ || isTooLong_)
        return {};
    return MidiPacket(bytes_).first(size_);
}

} // namespace velmora
