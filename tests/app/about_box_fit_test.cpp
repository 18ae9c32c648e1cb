// The memory lines of the About box, which are shown whole whatever their figures.

#include <gtest/gtest.h>

#include <string>

#include "app/about_box.h"
#include "platform/windows_ce.h"
#include "resources/resource_ids.h"
#include "tests/app/replaced_storage.h"
#include "tests/support/test_world.h"

namespace {

constexpr std::uint64_t Kilobyte = 1024;
constexpr std::uint64_t Terabyte = 1ULL << 40;
// The most that the lines' figures hold.
constexpr std::uint64_t Most = 2 * Terabyte - Kilobyte;

HFONT FontOf(HWND control) {
    return reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0));
}

std::wstring TextOf(HWND control) {
    wchar_t text[512] = L"";
    GetWindowTextW(control, text, 512);
    return text;
}

// On one line, in the static's own font.
LONG TextWidthOf(HWND control) {
    const std::wstring text = TextOf(control);
    const HDC context = GetDC(control);
    const HGDIOBJ before = SelectObject(context, FontOf(control));
    SIZE size = {};
    GetTextExtentPoint32W(context, text.c_str(), static_cast<int>(text.size()), &size);
    SelectObject(context, before);
    ReleaseDC(control, context);
    return size.cx;
}

LONG WidthOf(HWND control) {
    RECT area = {};
    GetClientRect(control, &area);
    return area.right;
}

// What is seen of the box while it runs.
struct Look {
    AboutBox* about = nullptr;
    std::wstring programMemory;
    bool hasOwnLetters = false;
};
Look* look = nullptr;

void CALLBACK LookAndClose(HWND, UINT, UINT_PTR timer, DWORD) {
    KillTimer(nullptr, timer);
    const HWND line = GetDlgItem(look->about->Handle(), STATIC_PROGRAM_MEMORY);
    look->programMemory = TextOf(line);
    look->hasOwnLetters = FontOf(line) == FontOf(GetDlgItem(look->about->Handle(), STATIC_VERSION));
    look->about->End(Dialog::ResultOk);
}

Look LookAt(AboutBox& about) {
    Look seen;
    seen.about = &about;
    look = &seen;
    SetTimer(nullptr, 0, 10, LookAndClose);
    about.RunModal();
    look = nullptr;
    return seen;
}

}  // namespace

class AboutBoxFit : public testing::TestWithParam<UiLanguage> {
  protected:
    AboutBoxFit() { ContextForStartUp().uiLanguage = GetParam(); }

    void ExpectEachLineWhole(const AboutBox& about) {
        for (int id = STATIC_PROGRAM_MEMORY; id <= STATIC_SECOND_STORAGE_CARD; ++id) {
            const HWND line = GetDlgItem(about.Handle(), id);
            EXPECT_GE(WidthOf(line), TextWidthOf(line)) << id;
        }
    }

    TestWorld world_;
    ReplacedStorage storage_;
    HostWindow host_;
};

TEST_P(AboutBoxFit, shows_the_largest_figures_whole) {
    storage_.program = {Most, Most};
    storage_.store = {Terabyte, Most};
    storage_.cards = {{L"E:\\", {Most, Most}, true}};
    AboutBox about(&host_.Object());
    about.CreateModeless();
    EXPECT_NE(
        TextOf(GetDlgItem(about.Handle(), STATIC_PROGRAM_MEMORY)).find(L"2147483647/2147483647KB (100%)"),
        std::wstring::npos);
    ExpectEachLineWhole(about);
}

TEST_P(AboutBoxFit, goes_back_to_its_own_letters_when_they_fit_again) {
    AboutBox about(&host_.Object());
    storage_.program = {Most, Most};
    EXPECT_FALSE(LookAt(about).hasOwnLetters);
    storage_.program = {4096 * Kilobyte, 16384 * Kilobyte};
    const Look seen = LookAt(about);
    EXPECT_NE(seen.programMemory.find(L"4096/16384KB (25%)"), std::wstring::npos);
    EXPECT_TRUE(seen.hasOwnLetters);
}

INSTANTIATE_TEST_SUITE_P(Languages, AboutBoxFit, testing::Values(UiLanguage::English, UiLanguage::Japanese));
