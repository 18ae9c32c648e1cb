// The block of a menu bar in the resources, and the captions that keys are looked up in.

#include <cstring>

#include "fuzz/fuzz_targets.h"
#include "fuzz/fuzz_texts.h"
#include "platform/desktop/menu_bar_layout.h"

namespace {

unsigned WordAt(const std::vector<char>& block, std::size_t at) {
    return static_cast<unsigned char>(block[at]) |
           static_cast<unsigned>(static_cast<unsigned char>(block[at + 1])) << 8;
}

void RequireSameButton(const std::vector<char>& block, std::size_t at,
                       const ce::MenuBarResourceButton& button) {
    const unsigned words[] = {button.image, button.command,  button.state,
                              button.style, button.stringId, button.subMenu};
    for (std::size_t word = 0; word < std::size(words); ++word)
        Require(words[word] == WordAt(block, at + 2 * word), "a button is the one of the block");
}

void ReadBlock(FuzzInput& input) {
    const std::string bytes = input.Bytes(4 + 12 * 17);
    const std::vector<char> block(bytes.begin(), bytes.end());
    ce::MenuBarLayout layout;
    const bool read = ce::ReadMenuBarLayout(block.empty() ? nullptr : block.data(), block.size(), layout);
    const std::size_t count = block.size() < 4 ? 0 : WordAt(block, 2);
    const bool isWhole = block.size() >= 4 && block.size() >= 4 + 12 * count;
    Require(read == (isWhole && count <= ce::MaxMenuBarButtons),
            "a block that is whole is read, and no other");
    if (!read) return;
    Require(layout.menuId == WordAt(block, 0), "the menu is the one of the block");
    Require(layout.buttonCount == static_cast<int>(count), "there are as many buttons as announced");
    for (std::size_t button = 0; button < count; ++button)
        RequireSameButton(block, 4 + 12 * button, layout.buttons[button]);
}

wchar_t CapitalPlainly(wchar_t unit) {
    return unit >= L'a' && unit <= L'z' ? static_cast<wchar_t>(unit - 32) : unit;
}

// With every "&&" taken out, the unit behind the first "&" that is left.
wchar_t MarkedPlainly(std::wstring text) {
    for (std::size_t at = text.find(L'&'); at != std::wstring::npos; at = text.find(L'&', at)) {
        if (at + 1 == text.size()) return L'\0';
        if (text[at + 1] != L'&') return CapitalPlainly(text[at + 1]);
        text.erase(at, 2);
    }
    return L'\0';
}

int CaptionPlainly(const std::vector<std::wstring>& captions, wchar_t key) {
    int first = -1;
    for (std::size_t at = captions.size(); at-- > 0;) {
        const wchar_t marked = MarkedPlainly(captions[at]);
        const bool begins = !captions[at].empty() && CapitalPlainly(captions[at][0]) == CapitalPlainly(key);
        if (marked == L'\0' && begins) first = static_cast<int>(at);
    }
    for (std::size_t at = captions.size(); at-- > 0;) {
        if (MarkedPlainly(captions[at]) == CapitalPlainly(key)) first = static_cast<int>(at);
    }
    return first;
}

void FindCaption(FuzzInput& input) {
    const wchar_t key = SomeTextOf(input, L"aAbB&", 1)[0];
    std::vector<std::wstring> captions;
    std::vector<ExactText<wchar_t>> exact;
    for (std::size_t left = input.UpTo(6); left > 0; --left) {
        captions.push_back(SomeTextOf(input, L"aAbBc&&", 8));
        exact.emplace_back(captions.back());
        Require(ce::Mnemonic(exact.back().Get()) == MarkedPlainly(captions.back()),
                "the marked letter is the plain one");
    }
    std::vector<const wchar_t*> texts;
    for (const ExactText<wchar_t>& text : exact)
        texts.push_back(text.Get());
    const int expected = key == L'\0' ? -1 : CaptionPlainly(captions, key);
    Require(ce::CaptionForKey(texts.data(), static_cast<int>(texts.size()), key) == expected,
            "a key finds the plain caption");
}

}  // namespace

void FuzzMenuBars(FuzzInput& input) {
    if (input.Flag())
        ReadBlock(input);
    else
        FindCaption(input);
}
