#pragma once

#include <QtGlobal>

/// Before a function whose loops the compiler turns into vector instructions: it is compiled for vectors of
/// 32 bytes, too, and that version is taken where the processor has them. The results are the same. Only
/// where the loader can choose (glibc), and not under sanitizers, which are not ready when it does.
#if defined(__x86_64__) && defined(__GLIBC__) && defined(__GNUC__) && !defined(__clang__)                    \
    && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
#define JPEG_WIDE_VECTORS __attribute__((target_clones("avx2", "default")))
#else
#define JPEG_WIDE_VECTORS
#endif
