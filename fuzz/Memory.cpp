// What the targets have in common: how the sanitizers look at memory.

extern "C" const char* __asan_default_options(); // of the sanitizers' interface
extern "C" const char* __lsan_default_suppressions();

extern "C" const char* __asan_default_options()
{
    // A machine with little memory: a file that claims a list of two thousand million entries gets none, as
    // it would from a machine whose memory is full, and the code has to live with that.
    // The rest is for speed: a run frees little, so that a small quarantine catches what is used too late;
    // and a finding that is run again with malloc_context_size=30 in ASAN_OPTIONS tells where its memory was
    // taken.
    return "allocator_may_return_null=1:max_allocation_size_mb=64:quarantine_size_mb=8:malloc_context_size=1";
}

extern "C" const char* __lsan_default_suppressions()
{
    return "leak:libfontconfig\n"; // keeps its configuration for the life of the process
}
