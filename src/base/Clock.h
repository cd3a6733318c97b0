#pragma once

namespace velmora {

/// Returns the seconds since an arbitrary moment on a steady clock. May be called on any thread.
double getTime();

} // namespace velmora
