// The look of the system that stands for the device: its colours and the letters of its captions.

#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <cmath>
#include <string>

namespace {

// What a greyed item of a menu is drawn in, whatever the colours are.
constexpr COLORREF GreyedItem = RGB(128, 128, 128);

double Linear(int part) {
    const double value = part / 255.0;
    return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double Brightness(COLORREF colour) {
    return 0.2126 * Linear(GetRValue(colour)) + 0.7152 * Linear(GetGValue(colour)) +
           0.0722 * Linear(GetBValue(colour));
}

// From 1, the same, to 21, black on white; letters of this size want 3 at least.
double Contrast(COLORREF one, COLORREF other) {
    const auto [darker, lighter] = std::minmax(Brightness(one), Brightness(other));
    return (lighter + 0.05) / (darker + 0.05);
}

class Letters {
  public:
    explicit Letters(const LOGFONTW& wanted)
        : context(CreateCompatibleDC(nullptr)),
          font(CreateFontIndirectW(&wanted)),
          before(SelectObject(context, font)) {}
    ~Letters() {
        SelectObject(context, before);
        DeleteObject(font);
        DeleteDC(context);
    }
    Letters(const Letters&) = delete;
    Letters& operator=(const Letters&) = delete;

    [[nodiscard]] LONG WidthOf(const std::wstring& text) const {
        SIZE size{};
        GetTextExtentPoint32W(context, text.c_str(), static_cast<int>(text.size()), &size);
        return size.cx;
    }

  private:
    HDC context;
    HFONT font;
    HGDIOBJ before;
};

NONCLIENTMETRICSW Metrics() {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    return metrics;
}

LOGFONTW FontOf(const wchar_t* face, LONG height) {
    LOGFONTW font{};
    font.lfHeight = height;
    font.lfCharSet = DEFAULT_CHARSET;
    wcscpy(font.lfFaceName, face);
    return font;
}

TEST(DeviceLook, titles_are_white_on_navy) {
    EXPECT_EQ(GetSysColor(COLOR_ACTIVECAPTION), RGB(0, 0, 128));
    EXPECT_EQ(GetSysColor(COLOR_GRADIENTACTIVECAPTION), RGB(0, 0, 128));
    EXPECT_EQ(GetSysColor(COLOR_CAPTIONTEXT), RGB(255, 255, 255));
}

TEST(DeviceLook, a_greyed_item_can_be_read_highlighted_or_not) {
    EXPECT_GE(Contrast(GreyedItem, GetSysColor(COLOR_MENU)), 3.0);
    EXPECT_GE(Contrast(GreyedItem, GetSysColor(COLOR_HIGHLIGHT)), 3.0);
    EXPECT_GE(Contrast(GreyedItem, GetSysColor(COLOR_MENUHILIGHT)), 3.0);
}

TEST(DeviceLook, everything_else_that_is_written_can_be_read) {
    const int pairs[][2] = {{COLOR_MENUTEXT, COLOR_MENU},     {COLOR_BTNTEXT, COLOR_BTNFACE},
                            {COLOR_WINDOWTEXT, COLOR_WINDOW}, {COLOR_HIGHLIGHTTEXT, COLOR_HIGHLIGHT},
                            {COLOR_INFOTEXT, COLOR_INFOBK},   {COLOR_CAPTIONTEXT, COLOR_ACTIVECAPTION},
                            {COLOR_GRAYTEXT, COLOR_WINDOW},   {COLOR_HIGHLIGHT, COLOR_WINDOW},
                            {COLOR_HIGHLIGHT, COLOR_BTNFACE}, {COLOR_HIGHLIGHTTEXT, COLOR_MENUHILIGHT}};
    for (const auto& pair : pairs)
        EXPECT_GE(Contrast(GetSysColor(pair[0]), GetSysColor(pair[1])), 3.0) << pair[0] << " on " << pair[1];
}

TEST(DeviceLook, buttons_have_a_bright_and_a_dark_edge) {
    const double face = Brightness(GetSysColor(COLOR_BTNFACE));
    EXPECT_GT(Brightness(GetSysColor(COLOR_BTNHIGHLIGHT)), face);
    EXPECT_LT(Brightness(GetSysColor(COLOR_BTNSHADOW)), face);
    EXPECT_LT(Brightness(GetSysColor(COLOR_3DDKSHADOW)), Brightness(GetSysColor(COLOR_BTNSHADOW)));
}

TEST(DeviceLook, captions_menus_and_messages_are_written_in_letters_of_8_to_9_points) {
    const NONCLIENTMETRICSW metrics = Metrics();
    for (const LOGFONTW& font : {metrics.lfCaptionFont, metrics.lfMenuFont, metrics.lfMessageFont}) {
        EXPECT_GE(-font.lfHeight, 8 * 96 / 72);
        EXPECT_LE(-font.lfHeight, 9 * 96 / 72);
    }
}

TEST(DeviceLook, latin_letters_of_captions_menus_and_messages_have_their_own_widths) {
    const NONCLIENTMETRICSW metrics = Metrics();
    for (const LOGFONTW& font : {metrics.lfCaptionFont, metrics.lfMenuFont, metrics.lfMessageFont}) {
        const Letters letters(font);
        EXPECT_LT(2 * letters.WidthOf(L"iiiiiiii"), letters.WidthOf(L"WWWWWWWW"));
    }
}

// Tahoma has none of its own, so that they come from elsewhere.
TEST(DeviceLook, japanese_letters_have_their_own_widths) {
    for (const LOGFONTW& font : {Metrics().lfCaptionFont, Metrics().lfMenuFont, FontOf(L"Tahoma", -12)}) {
        const Letters letters(font);
        EXPECT_LT(letters.WidthOf(L"トトトトトトトト"), letters.WidthOf(L"ホホホホホホホホ"));
    }
}

}  // namespace
