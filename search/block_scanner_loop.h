#pragma once

// The scanner's loop, for the two files that instantiate it.

#include <cstring>

#include "search/block_scanner.h"

#ifdef __x86_64__
#include <immintrin.h>
#endif

template <std::size_t width>
struct RegisterBytes;
template <>
struct RegisterBytes<16> {
    using Type = unsigned char __attribute__((vector_size(16)));
};
template <>
struct RegisterBytes<32> {
    using Type = unsigned char __attribute__((vector_size(32)));
};

// One loop for every width of register. Each width has its own source file, which settles the registers that
// the compiler may use.
template <std::size_t width, bool folding>
class RegisterScan {
    using Byte = unsigned char;
    using Bytes = typename RegisterBytes<width>::Type;
    static constexpr std::size_t Registers = CandidateMask::Places / width;
    static constexpr Byte CarriageReturn = 13;
    static constexpr Byte LineFeed = 10;

    // One byte of the pattern in every place of a register.
    struct Sought {
        Bytes folded;
        Bytes caseBit;
    };

    [[gnu::always_inline]] static inline void Load(Bytes& loaded, const Byte* bytes) {
        std::memcpy(&loaded, bytes, width);
    }
    [[gnu::always_inline]] static inline void Load(Sought& sought, const ScannedPattern::Repeated& repeated) {
        Load(sought.folded, repeated.folded);
        Load(sought.caseBit, repeated.caseBit);
    }

    // Leaves in `places` only what equals the byte sought, at the same place of `bytes`.
    [[gnu::always_inline]] static inline void KeepEqual(Bytes& places, const Byte* bytes,
                                                        const Sought& sought) {
        Bytes loaded;
        Load(loaded, bytes);
        if constexpr (folding) loaded |= sought.caseBit;
        places &= reinterpret_cast<Bytes>(loaded == sought.folded);
    }

    // A bit for each place that is set.
    [[gnu::always_inline]] static inline std::uint64_t BitsOf(const Bytes& places) {
#ifdef __x86_64__
        if constexpr (width == 32)
            return static_cast<std::uint32_t>(_mm256_movemask_epi8(reinterpret_cast<__m256i>(places)));
        else
            return static_cast<std::uint32_t>(_mm_movemask_epi8(reinterpret_cast<__m128i>(places)));
#else
        std::uint64_t bits = 0;
        for (std::size_t i = 0; i < width; ++i)
            bits |= std::uint64_t{places[i] != 0} << i;
        return bits;
#endif
    }

    [[gnu::always_inline]] static inline void FindCandidates(Bytes& places, const Byte* at,
                                                             const Sought& first, const Sought& second,
                                                             const Sought& last, std::size_t lastIndex) {
        Bytes here;
        Bytes next;
        Load(here, at);
        Load(next, at + 1);
        places = ~Bytes{};
        KeepEqual(places, at, first);
        KeepEqual(places, at + 1, second);
        KeepEqual(places, at + lastIndex, last);
        const auto endsLine = reinterpret_cast<Bytes>(next == LineFeed);
        places |= reinterpret_cast<Bytes>(here == CarriageReturn) & ~endsLine;
        if constexpr (folding) {
            places |= reinterpret_cast<Bytes>(here == LineFeed) &
                      (endsLine | reinterpret_cast<Bytes>(next == CarriageReturn));
        }
    }

  public:
    static CandidateMask Next(const ScannedPattern& pattern, const Byte* at, const Byte* stop) {
        Sought first;
        Sought second;
        Sought last;
        Load(first, pattern.first);
        Load(second, pattern.second);
        Load(last, pattern.last);
        const std::size_t lastIndex = pattern.lastIndex;
        const std::size_t reach = CandidateMask::Places + lastIndex;
        for (; static_cast<std::size_t>(stop - at) >= reach; at += CandidateMask::Places) {
            Bytes places[Registers];
            for (std::size_t i = 0; i < Registers; ++i)
                FindCandidates(places[i], at + i * width, first, second, last, lastIndex);
            // The masks are tested all at once, because a test costs as much as several comparisons.
            Bytes any = places[0];
            for (std::size_t i = 1; i < Registers; ++i)
                any |= places[i];
            if (BitsOf(any) == 0) continue;
            std::uint64_t candidates = 0;
            for (std::size_t i = 0; i < Registers; ++i)
                candidates |= BitsOf(places[i]) << (i * width);
            return {at, candidates};
        }
        return {at, 0};
    }
};
