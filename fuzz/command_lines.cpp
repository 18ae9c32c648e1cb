// The command line cut into words.

#include "app/command_line_words.h"
#include "fuzz/fuzz_targets.h"
#include "fuzz/fuzz_texts.h"

namespace {

std::vector<std::wstring> WordsPlainly(const std::wstring& line) {
    static constexpr const wchar_t* Blanks = L" \t";
    std::vector<std::wstring> words;
    std::size_t at = line.find_first_not_of(Blanks);
    while (at != std::wstring::npos && words.size() < 128) {
        const bool quoted = line[at] == L'"';
        const std::size_t begin = at + (quoted ? 1 : 0);
        const std::size_t end = quoted ? line.find(L'"', begin) : line.find_first_of(Blanks, begin);
        words.push_back(line.substr(begin, end == std::wstring::npos ? end : end - begin));
        at = end == std::wstring::npos ? end : line.find_first_not_of(Blanks, end + 1);
    }
    return words;
}

}  // namespace

void FuzzCommandLines(FuzzInput& input) {
    const std::wstring line =
        input.Byte() < 0x40 ? SomeText(input, 600) : SomeTextOf(input, L"ab\"\" \t", 255);
    const CommandLineWords words(ExactText<wchar_t>(line).Get());
    const std::vector<std::wstring> found(words.List(), words.List() + words.Count());
    Require(found == WordsPlainly(line), "the words are the plain ones");
}
