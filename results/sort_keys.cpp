#include "results/sort_keys.h"

#include <cwchar>

namespace {

constexpr int KilobyteShift = 10;
constexpr int MegabyteShift = 20;

std::int32_t ShiftLeft(std::int32_t number, int bits) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(number) << bits);
}

}  // namespace

// QUIRK: sizes-sort-as-shown
std::int32_t ParseShownSize(const wchar_t* text) {
    const auto number = static_cast<std::int32_t>(std::wcstol(text, nullptr, 10));
    const wchar_t* unit = std::wcspbrk(text, L"KM");
    if (unit == nullptr) return number;
    return ShiftLeft(number, *unit == L'K' ? KilobyteShift : MegabyteShift);
}

int CompareSizes(std::int32_t first, std::int32_t second) {
    return first > second ? 1 : first < second ? -1 : 0;
}

// QUIRK: sort-folds-english-letters. As the C library's default locale does.
void FoldForComparison(wchar_t* text) {
    for (; *text != L'\0'; ++text) {
        if (*text >= L'A' && *text <= L'Z') *text = static_cast<wchar_t>(*text + (L'a' - L'A'));
    }
}

int CompareFoldedTexts(const wchar_t* first, const wchar_t* second) {
    while (*first != L'\0' && *first == *second) {
        ++first;
        ++second;
    }
    return *first > *second ? 1 : *first < *second ? -1 : 0;
}
