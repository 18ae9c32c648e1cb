// The desktop's shortcut files, and targets taken apart as command lines.

#include "fuzz/fuzz_targets.h"
#include "fuzz/fuzz_texts.h"
#include "platform/desktop/shell_link_file.h"
#include "results/shortcut_target.h"

namespace {

// What no fuzzer would guess: the size of the header and the class of the file.
const std::string& StartOfLinkFile() {
    static const std::string start("\x4C\0\0\0\x01\x14\x02\0\0\0\0\0\xC0\0\0\0\0\0\0\x46", 20);
    return start;
}

// Each byte as the unit of that number.
std::wstring ByteByByte(std::string_view bytes) {
    std::wstring text;
    for (const char byte : bytes)
        text += static_cast<wchar_t>(static_cast<unsigned char>(byte));
    return text;
}

bool IsOneText(const std::wstring& text) {
    return text.find(L'\0') == std::wstring::npos;
}

void ReadLink(FuzzInput& input) {
    std::string bytes = input.Byte() == 0 ? "" : StartOfLinkFile();
    bytes += input.Bytes(input.Left());
    const std::vector<char> exact(bytes.begin(), bytes.end());
    ShellLinkTarget target{L"before", L"before"};
    const bool read = ReadShellLinkFile({exact.data(), exact.size()}, ByteByByte, target);
    Require(read == !target.program.empty(), "a file that was read has a program");
    Require(read || target.arguments.empty(), "a file that was not read has no arguments");
    Require(IsOneText(target.program) && IsOneText(target.arguments), "no text ends before its end");
    Require(target.program.size() <= 2 * bytes.size(), "a program is no longer than what it was read from");
    Require(target.arguments.size() <= bytes.size(), "arguments are no longer than what they were read from");
    Require(!read || bytes.compare(0, 20, StartOfLinkFile()) == 0, "only a shortcut file is read");
}

struct PlainTarget {
    std::wstring program, arguments;
};

PlainTarget SplitPlainly(const std::wstring& target) {
    static constexpr const wchar_t* Blanks = L" \t";
    const std::size_t begin = std::min(target.find_first_not_of(Blanks), target.size());
    const bool quoted = begin < target.size() && target[begin] == L'"';
    const std::size_t from = begin + (quoted ? 1 : 0);
    const std::size_t end =
        std::min(quoted ? target.find(L'"', from) : target.find_first_of(Blanks, from), target.size());
    const std::size_t behind = std::min(end + (quoted ? 1 : 0), target.size());
    const std::size_t rest = std::min(target.find_first_not_of(Blanks, behind), target.size());
    PlainTarget plain{target.substr(from, end - from), L""};
    for (const wchar_t unit : target.substr(rest))
        plain.arguments += unit == L'"' ? std::wstring(L"\"\"") : std::wstring(1, unit);
    return plain;
}

void SplitATarget(FuzzInput& input) {
    const std::wstring target =
        input.Byte() < 16 ? SomeText(input, 2 * TargetCapacity) : SomeTextOf(input, L"ab\" \t\\", 30);
    const ShortcutTarget parts = SplitTarget(ExactText<wchar_t>(target).Get());
    const PlainTarget plain = SplitPlainly(target);
    Require(parts.program == plain.program.substr(0, TargetCapacity - 1), "the program is the plain one");
    const std::wstring arguments = parts.arguments;
    Require(plain.arguments.compare(0, arguments.size(), arguments) == 0, "the arguments are the plain ones");
    const bool isWhole = arguments.size() == plain.arguments.size();
    Require(isWhole || target.size() >= TargetCapacity, "a target of the longest length is taken whole");
}

void TellPlainThings(FuzzInput& input) {
    const std::wstring text = SomeTextOf(input, L"\".lnkLNK\\", 12);
    std::wstring lower = text;
    for (wchar_t& unit : lower)
        if (unit >= L'A' && unit <= L'Z') unit = static_cast<wchar_t>(unit + 32);
    const bool isShortcut = text.size() >= 5 && lower.substr(text.size() - 4) == L".lnk";
    ExactText<wchar_t> exact(text);
    Require(IsShortcut(exact.Get()) == isShortcut, "a shortcut is known by its last units");
    RemoveEnclosingQuotes(exact.Get());
    const bool enclosed = text.size() >= 2 && text.front() == L'"' && text.back() == L'"';
    Require(exact.Get() == (enclosed ? text.substr(1, text.size() - 2) : text), "one pair of quotes goes");
}

}  // namespace

void FuzzShortcuts(FuzzInput& input) {
    switch (input.Byte() % 4) {
        case 0:
            return SplitATarget(input);
        case 1:
            return TellPlainThings(input);
        default:
            return ReadLink(input);
    }
}
