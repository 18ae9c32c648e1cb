#include "app/command_line_words.h"

#include <cstddef>
#include <cwchar>
#include <new>

namespace {

bool IsBlank(wchar_t unit) {
    return unit == L' ' || unit == L'\t';
}

wchar_t* SkipBlanks(wchar_t* at) {
    while (IsBlank(*at))
        ++at;
    return at;
}

wchar_t* EndOfWord(wchar_t* word, bool quoted) {
    while (*word != L'\0' && !(quoted ? *word == L'"' : IsBlank(*word)))
        ++word;
    return word;
}

}  // namespace

CommandLineWords::CommandLineWords(const wchar_t* commandLine) {
    const std::size_t units = std::wcslen(commandLine) + 1;
    text_ = new (std::nothrow) wchar_t[units];
    if (text_ == nullptr) return;
    std::wmemcpy(text_, commandLine, units);
    Split();
}

CommandLineWords::~CommandLineWords() {
    delete[] text_;
}

void CommandLineWords::Split() {
    // QUIRK: words-are-split-and-ignored
    wchar_t* at = SkipBlanks(text_);
    while (*at != L'\0' && count_ < MostWords) {
        const bool quoted = *at == L'"';
        if (quoted) ++at;
        words_[count_++] = at;
        at = EndOfWord(at, quoted);
        if (*at == L'\0') return;
        *at = L'\0';
        at = SkipBlanks(at + 1);
    }
}
