#pragma once

// Texts of 16-bit units for the targets, without a terminator inside.

#include "fuzz/fuzz_input.h"

// ASCII as it is; then units like the half-width letters, in which bytes have a share; then any unit at all.
inline wchar_t SomeUnit(FuzzInput& input) {
    constexpr std::uint8_t FirstOfAny = 0xF8;
    const std::uint8_t byte = input.Byte();
    if (byte >= FirstOfAny) return static_cast<wchar_t>(std::max<int>(input.Word(), 1));
    return static_cast<wchar_t>(byte >= 0x80 ? 0xFF00 | byte : std::max<int>(byte, 1));
}

// Runs of one unit come by a mark, so that a short input reaches the limits of a buffer.
inline std::wstring SomeText(FuzzInput& input, std::size_t most) {
    constexpr std::uint8_t Run = 0x01;
    const std::size_t length = input.UpTo(most);
    std::wstring text;
    while (text.size() < length) {
        const wchar_t unit = SomeUnit(input);
        text.append(unit == Run ? std::min(input.UpTo(299) + 1, length - text.size()) : 1,
                    unit == Run ? SomeUnit(input) : unit);
    }
    return text;
}

// Of the units that matter to a rule, now and then another one.
template <std::size_t Count>
std::wstring SomeTextOf(FuzzInput& input, const wchar_t (&units)[Count], std::size_t most) {
    constexpr std::uint8_t FirstOfOthers = 0xF0;
    std::wstring text(input.UpTo(most), L' ');
    for (wchar_t& unit : text) {
        const std::uint8_t byte = input.Byte();
        // The literal's terminator is no choice.
        unit = byte < FirstOfOthers ? units[byte % (Count - 1)] : SomeUnit(input);
    }
    return text;
}
