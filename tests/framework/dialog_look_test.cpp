#include <vector>

#include "framework/dialog.h"
#include "resources/resource_ids.h"
#include "tests/framework/dialog_ids.h"
#include "tests/framework/test_dialog.h"

namespace {

constexpr COLORREF White = RGB(255, 255, 255);
constexpr COLORREF Black = RGB(0, 0, 0);

// A drawing context with colours that no control asks for.
class ColourProbe {
  public:
    ColourProbe() : context(CreateCompatibleDC(nullptr)) {
        SetTextColor(context, UnusualColour);
        SetBkMode(context, OPAQUE);
    }
    ~ColourProbe() { DeleteDC(context); }
    ColourProbe(const ColourProbe&) = delete;
    ColourProbe& operator=(const ColourProbe&) = delete;

    // What the dialog answers for the static, as the system would get it.
    LRESULT Ask(const TestDialog& dialog, int id) const {
        return SendMessageW(dialog.Handle(), WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(context),
                            reinterpret_cast<LPARAM>(dialog.Item(id)));
    }

    static constexpr COLORREF UnusualColour = RGB(1, 2, 3);
    HDC context;
};

class DialogLook : public FrameworkTest {
  protected:
    // The colours of a shown dialog's client area along one row.
    static std::vector<COLORREF> Row(const TestDialog& dialog, int y) {
        RECT area{};
        GetClientRect(dialog.Handle(), &area);
        const HDC context = GetDC(dialog.Handle());
        std::vector<COLORREF> row;
        for (int x = 0; x < area.right; ++x)
            row.push_back(GetPixel(context, x, y));
        ReleaseDC(dialog.Handle(), context);
        return row;
    }

    static void Show(TestDialog& dialog) {
        dialog.bar = DialogBar::None;
        dialog.ShowModeless();
        MoveWindow(dialog.Handle(), 0, 0, 200, 140, TRUE);
        PumpMessages();
        RedrawWindow(dialog.Handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    }
};

TEST_F(DialogLook, has_a_line_under_the_title) {
    TestDialog dialog(L"Titled_E");
    Show(dialog);
    const std::vector<COLORREF> line = Row(dialog, 24);
    ASSERT_EQ(line.size(), 200U);
    EXPECT_EQ(line, std::vector<COLORREF>(200, Black));
    EXPECT_EQ(Row(dialog, 23), std::vector<COLORREF>(200, White));
    EXPECT_EQ(Row(dialog, 25), std::vector<COLORREF>(200, White));
}

TEST_F(DialogLook, has_no_line_without_a_title) {
    TestDialog dialog(L"Plain_E");
    Show(dialog);
    const std::vector<COLORREF> row = Row(dialog, 24);
    ASSERT_FALSE(row.empty());
    EXPECT_EQ(row.front(), White);
    EXPECT_EQ(row.back(), White);
}

TEST_F(DialogLook, is_painted_by_the_dialog_only_with_a_title) {
    TestDialog titled(L"Titled_E");
    TestDialog plain(L"Plain_E");
    titled.CreateModeless();
    plain.CreateModeless();
    MessageRecord paint{WM_PAINT, 0, 0, 0, 0};
    InvalidateRect(titled.Handle(), nullptr, TRUE);
    EXPECT_EQ(titled.Dispatch(paint), 1);
    EXPECT_FALSE(GetUpdateRect(titled.Handle(), nullptr, FALSE)) << "painted, so nothing is left to paint";
    EXPECT_EQ(plain.Dispatch(paint), 0);
}

TEST_F(DialogLook, gives_title_statics_the_highlight_colour_on_a_clear_ground) {
    TestDialog dialog(L"Titled_E");
    dialog.CreateModeless();
    for (const int id : {STATIC_TITLE, TITLED_STATIC_LAST}) {
        const ColourProbe probe;
        ASSERT_NE(dialog.Item(id), nullptr);
        EXPECT_EQ(probe.Ask(dialog, id), reinterpret_cast<LRESULT>(GetStockObject(WHITE_BRUSH))) << id;
        EXPECT_EQ(GetTextColor(probe.context), GetSysColor(13)) << id;
        EXPECT_EQ(GetBkMode(probe.context), TRANSPARENT) << id;
    }
}

TEST_F(DialogLook, gives_every_other_static_a_white_ground_only) {
    TestDialog dialog(L"Titled_E");
    dialog.CreateModeless();
    for (const int id : {TITLED_OTHER_STATIC, TITLED_STATIC_BEFORE, TITLED_STATIC_BEHIND}) {
        const ColourProbe probe;
        ASSERT_NE(dialog.Item(id), nullptr);
        EXPECT_EQ(probe.Ask(dialog, id), reinterpret_cast<LRESULT>(GetStockObject(WHITE_BRUSH))) << id;
        EXPECT_EQ(GetTextColor(probe.context), ColourProbe::UnusualColour) << id;
        EXPECT_EQ(GetBkMode(probe.context), OPAQUE) << id;
    }
}

TEST_F(DialogLook, has_a_font_12_pixels_high) {
    const TestDialog dialog(L"Titled_E");
    LOGFONTW font{};
    ASSERT_NE(GetObjectW(dialog.Font(), sizeof font, &font), 0);
    EXPECT_EQ(font.lfHeight, -12);
}

}  // namespace
