// What the sanitizers find in libraries and is not ours to mend.

#ifdef __SANITIZE_THREAD__
// It cannot see how libraries that are built without it synchronise their threads.
// NOLINTNEXTLINE(bugprone-reserved-identifier): the sanitizer's own hook
extern "C" const char* __tsan_default_suppressions()
{
    return "called_from_lib:libQt6Core.so\n"
           "called_from_lib:libQt6DBus.so\n"
           "called_from_lib:libdbus-1.so\n"
           "called_from_lib:libgomp.so\n"
           "called_from_lib:libopenal.so\n"
           "race:closedir\n"     // a file's number is used again
           "race:copyFromJack\n" // its server's shared memory
           "deadlock:libdbus-1.so\n";
}
#endif

#ifdef __SANITIZE_ADDRESS__
// OpenAL keeps two kilobytes of a device that was opened on JACK and closed.
// NOLINTNEXTLINE(bugprone-reserved-identifier): the sanitizer's own hook
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:libopenal.so\n";
}

// NOLINTNEXTLINE(bugprone-reserved-identifier): likewise
extern "C" const char* __lsan_default_options()
{
    return "print_suppressions=0";
}

// Keeps every library in memory: what the graphics driver still has in its variables when it is
// unloaded would look lost.
extern "C" int dlclose(void* /*library*/) noexcept
{
    return 0;
}
#endif
