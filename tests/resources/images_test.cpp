#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "tests/resources/program_module.h"

namespace {

constexpr int Icons[] = {101, 10000, 10001, 10002, 10003, 10004, 10005, 10006, 10007, 10011, 10022, 10032};
constexpr int Sizes[] = {16, 32, 48};
constexpr int Program = 101;
constexpr int ShortcutMark = 10006;
constexpr COLORREF White = RGB(255, 255, 255);
// None of the drawings has it.
constexpr COLORREF Background = RGB(255, 0, 255);

// An icon drawn on a background, pixel by pixel.
class DrawnIcon {
  public:
    DrawnIcon(int id, int size, COLORREF background) {
        const auto icon =
            static_cast<HICON>(LoadImageW(ProgramModule(), MAKEINTRESOURCEW(id), IMAGE_ICON, size, size, 0));
        EXPECT_NE(icon, nullptr);
        const HDC screen = GetDC(nullptr);
        memory_ = CreateCompatibleDC(screen);
        canvas_ = CreateCompatibleBitmap(screen, size, size);
        before_ = SelectObject(memory_, canvas_);
        const HBRUSH brush = CreateSolidBrush(background);
        const RECT area = {0, 0, size, size};
        FillRect(memory_, &area, brush);
        DrawIconEx(memory_, 0, 0, icon, size, size, 0, nullptr, DI_NORMAL);
        DeleteObject(brush);
        ReleaseDC(nullptr, screen);
        DestroyIcon(icon);
    }
    ~DrawnIcon() {
        SelectObject(memory_, before_);
        DeleteObject(canvas_);
        DeleteDC(memory_);
    }
    DrawnIcon(const DrawnIcon&) = delete;
    DrawnIcon& operator=(const DrawnIcon&) = delete;

    [[nodiscard]] COLORREF At(int x, int y) const { return GetPixel(memory_, x, y); }

  private:
    HDC memory_;
    HBITMAP canvas_;
    HGDIOBJ before_;
};

// The edges of the pictures in an icon.
std::set<int> SizesIn(int id) {
    const std::vector<unsigned char> group = ResourceBytes(MAKEINTRESOURCEW(id), RT_GROUP_ICON);
    std::set<int> sizes;
    for (std::size_t entry = 6; entry + 14 <= group.size(); entry += 14) {
        EXPECT_EQ(group[entry], group[entry + 1]);
        // A byte is too small for 256.
        sizes.insert(group[entry] != 0 ? group[entry] : 256);
    }
    return sizes;
}

TEST(Images, every_icon_holds_a_picture_for_each_size_of_the_device_and_the_desktop) {
    for (const int id : Icons) {
        if (id == Program) continue;
        EXPECT_EQ(SizesIn(id), (std::set<int>{16, 32, 48})) << id;
    }
}

TEST(Images, the_programs_own_icon_holds_a_picture_for_the_desktops_largest_size_as_well) {
    EXPECT_EQ(SizesIn(Program), (std::set<int>{16, 32, 48, 256}));
    const DrawnIcon icon(Program, 256, Background);
    EXPECT_EQ(icon.At(255, 0), Background);
    EXPECT_EQ(icon.At(0, 255), Background);
    // The sheet, its edge and the glass.
    EXPECT_EQ(icon.At(40, 30), White);
    EXPECT_EQ(icon.At(23, 100), RGB(0, 0, 0x80));
    EXPECT_EQ(icon.At(140, 140), RGB(0, 255, 255));
}

TEST(Images, every_icon_is_transparent_around_its_drawing) {
    for (const int id : Icons)
        for (const int size : Sizes) {
            SCOPED_TRACE(std::to_string(id) + " at " + std::to_string(size));
            const DrawnIcon icon(id, size, Background);
            EXPECT_EQ(icon.At(size - 1, 0), Background);
            int drawn = 0;
            for (int y = 0; y < size; ++y)
                for (int x = 0; x < size; ++x)
                    if (icon.At(x, y) != Background) ++drawn;
            EXPECT_GE(drawn, size * size / 8);
            EXPECT_LT(drawn, size * size);
        }
}

TEST(Images, every_icon_is_clear_on_white) {
    for (const int id : Icons)
        for (const int size : Sizes) {
            SCOPED_TRACE(std::to_string(id) + " at " + std::to_string(size));
            const DrawnIcon icon(id, size, White);
            int dark = 0;
            for (int y = 0; y < size; ++y)
                for (int x = 0; x < size; ++x) {
                    const COLORREF colour = icon.At(x, y);
                    if (GetRValue(colour) + GetGValue(colour) + GetBValue(colour) <= 3 * 0x80) ++dark;
                }
            EXPECT_GE(dark, 2 * size);
        }
}

TEST(Images, no_two_icons_look_the_same) {
    for (const int size : Sizes)
        for (const int first : Icons)
            for (const int second : Icons) {
                if (first >= second) continue;
                const DrawnIcon one(first, size, White);
                const DrawnIcon other(second, size, White);
                int different = 0;
                for (int y = 0; y < size; ++y)
                    for (int x = 0; x < size; ++x)
                        if (one.At(x, y) != other.At(x, y)) ++different;
                EXPECT_GE(different, size) << first << " and " << second << " at " << size;
            }
}

// It is laid over a file's icon, of which most has to stay visible.
TEST(Images, the_shortcut_mark_stands_in_the_lower_left_corner_alone) {
    for (const int size : Sizes) {
        const DrawnIcon mark(ShortcutMark, size, Background);
        EXPECT_NE(mark.At(0, size - 1), Background);
        for (int y = 0; y < size; ++y)
            for (int x = 0; x < size; ++x) {
                if (x <= size * 9 / 16 && y >= size * 6 / 16) continue;
                EXPECT_EQ(mark.At(x, y), Background);
            }
    }
}

TEST(Images, the_dialog_bar_has_five_pictures_of_16_by_16) {
    const auto bitmap = static_cast<HBITMAP>(
        LoadImageW(ProgramModule(), MAKEINTRESOURCEW(28702), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION));
    ASSERT_NE(bitmap, nullptr);
    BITMAP size = {};
    EXPECT_NE(GetObjectW(bitmap, sizeof(size), &size), 0);
    EXPECT_EQ(size.bmWidth, 5 * 16);
    EXPECT_EQ(size.bmHeight, 16);
    DeleteObject(bitmap);
}

// The colour in a corner of each picture is the grey that a tool bar replaces by that of its buttons.
TEST(Images, the_pictures_of_the_dialog_bar_stand_on_the_buttons_grey) {
    const auto bitmap = static_cast<HBITMAP>(
        LoadImageW(ProgramModule(), MAKEINTRESOURCEW(28702), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION));
    ASSERT_NE(bitmap, nullptr);
    const HDC memory = CreateCompatibleDC(nullptr);
    const HGDIOBJ before = SelectObject(memory, bitmap);
    for (int picture = 0; picture < 5; ++picture) {
        EXPECT_EQ(GetPixel(memory, 16 * picture, 0), RGB(192, 192, 192));
        int drawn = 0;
        for (int y = 0; y < 16; ++y)
            for (int x = 0; x < 16; ++x)
                if (GetPixel(memory, 16 * picture + x, y) != RGB(192, 192, 192)) ++drawn;
        EXPECT_GT(drawn, 16) << "picture " << picture << " is empty";
    }
    SelectObject(memory, before);
    DeleteDC(memory);
    DeleteObject(bitmap);
}

}  // namespace
