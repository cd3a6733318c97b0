#pragma once

#include <pthread.h>

namespace velmora {

/// While one exists, this thread cannot be cancelled. libjack cancels its threads when it closes a
/// client, wherever they are; a callback would leave its locks and states as they are. Every
/// callback of libjack that uses such things begins with one of these.
class Uncancelled {
public:
    Uncancelled() { pthread_setcancelstate(PTHREAD_CANCEL_DISABLE, &before_); }
    ~Uncancelled() { pthread_setcancelstate(before_, nullptr); }
    Uncancelled(const Uncancelled&) = delete;
    Uncancelled& operator=(const Uncancelled&) = delete;

private:
    int before_ = PTHREAD_CANCEL_ENABLE;
};

} // namespace velmora
