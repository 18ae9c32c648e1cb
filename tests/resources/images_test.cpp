#include <gtest/gtest.h>

#include <set>

#include "tests/resources/program_module.h"

namespace {

TEST(Images, the_programs_icon_holds_a_small_and_a_large_picture) {
    const std::vector<unsigned char> group = ResourceBytes(MAKEINTRESOURCEW(101), RT_GROUP_ICON);
    ASSERT_GE(group.size(), 6u);
    const std::size_t count = group[4];
    ASSERT_EQ(group.size(), 6 + 14 * count);
    std::set<int> sizes;
    for (std::size_t index = 0; index < count; ++index)
        sizes.insert(group[6 + 14 * index]);
    EXPECT_EQ(sizes, (std::set<int>{16, 32}));
}

TEST(Images, the_programs_icon_is_transparent_around_its_drawing) {
    for (const int size : {16, 32}) {
        const auto icon =
            static_cast<HICON>(LoadImageW(ProgramModule(), MAKEINTRESOURCEW(101), IMAGE_ICON, size, size, 0));
        ASSERT_NE(icon, nullptr);
        const HDC screen = GetDC(nullptr);
        const HDC memory = CreateCompatibleDC(screen);
        const HBITMAP canvas = CreateCompatibleBitmap(screen, size, size);
        const HGDIOBJ before = SelectObject(memory, canvas);
        PatBlt(memory, 0, 0, size, size, WHITENESS);
        DrawIconEx(memory, 0, 0, icon, size, size, 0, nullptr, DI_NORMAL);
        EXPECT_EQ(GetPixel(memory, size - 1, 0), RGB(255, 255, 255));
        EXPECT_NE(GetPixel(memory, size / 2, size / 2), RGB(255, 255, 255));
        SelectObject(memory, before);
        DeleteObject(canvas);
        DeleteDC(memory);
        ReleaseDC(nullptr, screen);
        DestroyIcon(icon);
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
