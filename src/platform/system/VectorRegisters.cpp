#include "platform/system/VectorRegisters.h"

#if defined(__x86_64__)
#include <immintrin.h>
#if defined(__clang__)
// The next header uses this word of C, which clang does not know in C++.
#define _Bool bool // NOLINT(clang-diagnostic-reserved-macro-identifier)
#endif
#include <sys/platform/x86.h>
#endif

namespace ptk {

#if defined(__x86_64__)

namespace {

[[gnu::target("avx")]] void Clear()
{
    _mm256_zeroupper();
}

} // namespace

// The compiler's own check would query the processor again at each start of each program that has this file in it: on a virtual machine, a
// thirtieth of the time that a whole time card takes.
void ClearUpperVectors()
{
    if (CPU_FEATURE_ACTIVE(AVX)) {
        Clear();
    }
}

#else

void ClearUpperVectors() {}

#endif

} // namespace ptk
