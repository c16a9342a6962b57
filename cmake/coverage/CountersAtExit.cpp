// Linked with --wrap=_exit: a process that leaves by _exit() writes its coverage counters first.

extern "C" {
void __gcov_dump(); // NOLINT(bugprone-reserved-identifier): the compiler's
[[noreturn]] void __real__exit(int status); // NOLINT(bugprone-reserved-identifier): the linker's
[[noreturn]] void __wrap__exit(int status); // NOLINT(bugprone-reserved-identifier): the linker's
}

void __wrap__exit(int status) // NOLINT(bugprone-reserved-identifier): the linker's
{
    __gcov_dump();
    __real__exit(status);
}
