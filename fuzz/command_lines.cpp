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

// Now and then a piece many times over, so that there are more words than are kept.
std::wstring SomeLine(FuzzInput& input) {
    const std::size_t kind = input.UpTo(7);
    if (kind <= 1) return SomeText(input, 600);
    const std::wstring piece = SomeTextOf(input, L"ab\"\" \t", 255);
    std::wstring line;
    for (std::size_t times = kind == 2 ? input.UpTo(140) : 1; times > 0; --times)
        line += piece.substr(0, kind == 2 ? 8 : piece.size());
    return line;
}

}  // namespace

void FuzzCommandLines(FuzzInput& input) {
    const std::wstring line = SomeLine(input);
    const CommandLineWords words(ExactText<wchar_t>(line).Get());
    const std::vector<std::wstring> found(words.List(), words.List() + words.Count());
    Require(found == WordsPlainly(line), "the words are the plain ones");
}
