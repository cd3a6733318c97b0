// ThreadSanitizer cannot see how libraries that are built without it synchronise their threads.

#ifdef __SANITIZE_THREAD__
// NOLINTNEXTLINE(bugprone-reserved-identifier): the sanitizer's own hook
extern "C" const char* __tsan_default_suppressions()
{
    return "called_from_lib:libQt6Core.so\n"
           "called_from_lib:libQt6DBus.so\n"
           "called_from_lib:libdbus-1.so\n"
           "called_from_lib:libgomp.so\n"
           "race:copyFromJack\n" // its server's shared memory
           "deadlock:libdbus-1.so\n";
}
#endif
