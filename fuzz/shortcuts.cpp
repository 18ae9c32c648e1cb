// Shortcut files, the desktop's and those that are a text, and targets taken apart as command lines.

#include <windows.h>

#include "fuzz/fuzz_targets.h"
#include "fuzz/fuzz_texts.h"
#include "fuzz/world/made_up_files.h"
#include "fuzz/world/made_up_link.h"
#include "platform/ce_shortcuts.h"
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

std::wstring InCodePage(const std::string& bytes) {
    std::wstring text(bytes.size() + 1, L'\0');
    const auto size = static_cast<int>(bytes.size());
    text.resize(static_cast<std::size_t>(MultiByteToWideChar(0, 0, bytes.data(), size, text.data(), size)));
    return text;
}

// Digits, a "#", and as many bytes as they say, or fewer, up to the end of the line. Empty for anything else.
std::wstring TextTargetPlainly(const std::string& bytes) {
    const std::size_t mark = bytes.find_first_not_of("0123456789");
    if (mark == 0 || mark == std::string::npos || bytes[mark] != '#') return L"";
    std::size_t announced = 0;
    for (std::size_t at = 0; at < mark; ++at)
        announced =
            std::min<std::size_t>(announced * 10 + static_cast<std::size_t>(bytes[at] - '0'), 1000000);
    const std::string rest = bytes.substr(mark + 1, announced);
    return InCodePage(rest.substr(0, rest.find_first_of(std::string("\r\n\0", 3))));
}

// What is not a text may be the desktop's file, which has no plain rule here.
void ReadAFile(FuzzInput& input) {
    const int capacity = static_cast<int>(input.UpTo(300));
    std::string bytes = input.Flag() ? std::to_string(input.UpTo(300)) + '#' : "";
    if (input.UpTo(3) == 0) bytes = StartOfLinkFile();
    bytes += input.Bytes(input.Left());
    SetMadeUpFile(bytes);
    std::vector<wchar_t> target(static_cast<std::size_t>(capacity), L'#');
    const bool read = ce::SHGetShortcutTarget(L"\\a.lnk", target.data(), capacity) != FALSE;
    if (capacity == 0) return Require(!read, "nothing is read into no room");
    const std::size_t length = wcsnlen(target.data(), target.size());
    Require(length < target.size() && read == (length > 0),
            "what is read is terminated, and empty if there is none");
    const std::wstring plain = TextTargetPlainly(bytes);
    if (plain.empty()) return Require(!read || bytes.size() > 20, "what is no shortcut is none");
    const std::size_t units = std::min(plain.find(L'\0'), plain.size());
    Require(read == (plain.size() < target.size()), "a text that fits is read, and no other");
    Require(!read || std::wstring(target.data()) == plain.substr(0, units), "the target is the plain one");
}

// The program in its quotes or up to a blank, and behind the blanks the arguments.
void MakeALink(FuzzInput& input) {
    const std::wstring target = SomeTextOf(input, L"ab\" \t\\", 40);
    TheLink() = {};
    const bool made = ce::SHCreateShortcut(L"\\a.lnk", ExactText<wchar_t>(target).Get()) != FALSE;
    const bool quoted = target.starts_with(L'"');
    const std::size_t from = quoted ? 1 : 0;
    const std::size_t end =
        std::min(quoted ? target.find(L'"', 1) : target.find_first_of(L" \t"), target.size());
    const std::wstring program = target.substr(from, end - from);
    const std::wstring behind = end < target.size() ? target.substr(end + 1) : L"";
    const std::size_t rest = std::min(behind.find_first_not_of(L" \t"), behind.size());
    Require(made == !program.empty() && TheLink().saved == made, "a link to a program is made, and no other");
    Require(!made || TheLink().program == program, "the program is the plain one");
    Require(!made || TheLink().arguments == behind.substr(rest), "the arguments are the plain ones");
}

}  // namespace

void FuzzShortcuts(FuzzInput& input) {
    static constexpr decltype(&ReadLink) Kinds[] = {SplitATarget, TellPlainThings, ReadLink,
                                                    ReadLink,     ReadAFile,       MakeALink};
    input.OneOf(Kinds)(input);
}
