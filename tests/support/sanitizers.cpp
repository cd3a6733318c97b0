// Suppresses reports about libraries.

#ifdef __SANITIZE_THREAD__
// ThreadSanitizer cannot see how uninstrumented libraries synchronise their threads.
// NOLINTNEXTLINE(bugprone-reserved-identifier): the sanitizer's own hook
extern "C" const char* __tsan_default_suppressions()
{
    return "called_from_lib:libQt6Core.so\n"
           "called_from_lib:libQt6DBus.so\n"
           "called_from_lib:libQt6Gui.so\n"
           "called_from_lib:libdbus-1.so\n"
           "called_from_lib:libgomp.so\n"
           "called_from_lib:libopenal.so\n"
           "race:closedir\n"     // file descriptors are reused
           "race:copyFromJack\n" // shares memory with the server, as does the next
           "race:jack_midi_event_write\n"
           "race:libglib-2.0.so\n" // as the loops of its events wake each other
           "deadlock:libdbus-1.so\n";
}
#endif

#ifdef __SANITIZE_ADDRESS__
// OpenAL leaks two kilobytes of each device that was opened on JACK.
// NOLINTNEXTLINE(bugprone-reserved-identifier): the sanitizer's own hook
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:libopenal.so\n";
}

// NOLINTNEXTLINE(bugprone-reserved-identifier): the sanitizer's own hook
extern "C" const char* __lsan_default_options()
{
    return "print_suppressions=0";
}

// Keeps every library loaded, because memory that only a library's variables refer to would look
// leaked once the library is unloaded.
extern "C" int dlclose(void* /*library*/) noexcept
{
    return 0;
}
#endif
