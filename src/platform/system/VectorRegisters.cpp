#include "platform/system/VectorRegisters.h"

#if defined(__x86_64__)
#include <immintrin.h>
#endif

namespace ptk {

#if defined(__x86_64__)

namespace {

[[gnu::target("avx")]] void Clear()
{
    _mm256_zeroupper();
}

} // namespace

void ClearUpperVectors()
{
    if (__builtin_cpu_supports("avx") != 0) {
        Clear();
    }
}

#else

void ClearUpperVectors() {}

#endif

} // namespace ptk
