#include "cli/Interruption.h"

#include <csignal>
#include <initializer_list>

namespace {

volatile std::sig_atomic_t noted = 0;

} // namespace

Interruption::Interruption()
{
    noted = 0;
    for (const int signal : {SIGINT, SIGTERM})
        std::signal(signal, [](int) { noted = 1; });
}

Interruption::~Interruption()
{
    for (const int signal : {SIGINT, SIGTERM})
        std::signal(signal, SIG_DFL);
}

bool Interruption::requested() const
{
    return noted != 0;
}
