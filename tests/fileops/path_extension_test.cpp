#include "fileops/operation_paths.h"

#include <gtest/gtest.h>

#include <cwchar>
#include <string>

class Extension : public testing::Test {
  protected:
    void Start(const std::wstring& text) { std::wmemcpy(path_, text.c_str(), text.size() + 1); }

    PathBuffer path_ = L"";
};

TEST_F(Extension, is_there_for_as_long_as_it_lives) {
    Start(L"\\a");
    {
        const PathExtension outer(path_, L"b");
        EXPECT_TRUE(outer.Fits());
        {
            const PathExtension inner(path_, L"c.txt");
            EXPECT_STREQ(path_, L"\\a\\b\\c.txt");
        }
        EXPECT_STREQ(path_, L"\\a\\b");
    }
    EXPECT_STREQ(path_, L"\\a");
}

TEST_F(Extension, adds_no_second_separator_to_a_root) {
    Start(L"\\");
    {
        const PathExtension extension(path_, L"b");
        EXPECT_STREQ(path_, L"\\b");
    }
    EXPECT_STREQ(path_, L"\\");
}

TEST_F(Extension, of_an_empty_path_is_the_name) {
    {
        const PathExtension extension(path_, L"b");
        EXPECT_STREQ(path_, L"b");
    }
    EXPECT_STREQ(path_, L"");
}

TEST_F(Extension, fits_up_to_259_units) {
    const std::wstring longest(257, L'x');
    Start(longest);
    {
        const PathExtension extension(path_, L"n");
        EXPECT_TRUE(extension.Fits());
        EXPECT_EQ(path_, longest + L"\\n");
    }
    const PathExtension extension(path_, L"nn");
    EXPECT_FALSE(extension.Fits());
    EXPECT_EQ(path_, longest);
}

TEST_F(Extension, is_refused_to_a_name_that_starts_like_a_drive) {
    Start(L"\\a");
    for (const wchar_t* const name : {L"b:", L"b:c"}) {
        const PathExtension extension(path_, name);
        EXPECT_FALSE(extension.Fits());
        EXPECT_STREQ(path_, L"\\a");
    }
}

TEST_F(Extension, can_be_the_name_of_another_path) {
    Start(L"\\d");
    {
        const PathExtension extension = PathExtension::ByNameOf(L"\\a\\b.txt", path_);
        EXPECT_TRUE(extension.Fits());
        EXPECT_STREQ(path_, L"\\d\\b.txt");
    }
    EXPECT_STREQ(path_, L"\\d");
}

TEST_F(Extension, can_be_nothing) {
    Start(L"\\d");
    const PathExtension extension = PathExtension::ByNothing(path_);
    EXPECT_TRUE(extension.Fits());
    EXPECT_STREQ(path_, L"\\d");
}
