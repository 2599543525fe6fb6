#include "Widgets/Usage/ByteSearch.h"

#include <bit>
#include <cstring>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace fendrel {

const char* findBytesPortably(const char* begin, const char* end, std::string_view needle) {
    const auto size = static_cast<std::ptrdiff_t>(needle.size());
    while (end - begin >= size) {
        const auto* found = static_cast<const char*>(
            std::memchr(begin, needle.front(), static_cast<std::size_t>(end - begin - size + 1)));
        if (!found)
            break;
        if (std::memcmp(found, needle.data(), needle.size()) == 0)
            return found;
        begin = found + 1;
    }
    return end;
}

#ifdef __SSE2__

namespace {

constexpr int width = sizeof(__m128i);
constexpr int vectors = 4; // whose findings are looked at together

/// At which of 16 places beginning at `from` a pair of bytes stands.
__m128i pairs(const char* from, __m128i first, __m128i second) {
    const auto load = [](const char* at) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(at)); };
    return _mm_and_si128(_mm_cmpeq_epi8(load(from), first), _mm_cmpeq_epi8(load(from + 1), second));
}

} // namespace

const char* findBytes(const char* begin, const char* end, std::string_view needle) {
    const std::size_t lastPair = needle.size() - 2;
    const __m128i first = _mm_set1_epi8(needle[lastPair]);
    const __m128i second = _mm_set1_epi8(needle[lastPair + 1]);
    for (; end - begin >= vectors * width + static_cast<std::ptrdiff_t>(needle.size()); begin += vectors * width) {
        const char* const from = begin + lastPair;
        const __m128i found[vectors] = {pairs(from, first, second), pairs(from + width, first, second),
                                        pairs(from + 2 * width, first, second), pairs(from + 3 * width, first, second)};
        const __m128i any = _mm_or_si128(_mm_or_si128(found[0], found[1]), _mm_or_si128(found[2], found[3]));
        if (_mm_movemask_epi8(any) == 0)
            continue;
        for (int vector = 0; vector < vectors; ++vector) {
            auto places = static_cast<unsigned>(_mm_movemask_epi8(found[vector]));
            for (; places != 0; places &= places - 1) {
                const char* candidate = begin + vector * width + std::countr_zero(places);
                if (std::memcmp(candidate, needle.data(), lastPair) == 0)
                    return candidate;
            }
        }
    }
    return findBytesPortably(begin, end, needle);
}

#else

const char* findBytes(const char* begin, const char* end, std::string_view needle) {
    return findBytesPortably(begin, end, needle);
}

#endif

} // namespace fendrel
