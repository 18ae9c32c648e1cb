// The content condition: lines, case, and Japanese text with and without the conversion library.

#include "resources/resource_ids.h"
#include "tests/program/program_test.h"

class Content : public ProgramTest {
  protected:
    Names NamesContaining(const std::wstring& text, const std::wstring& location = L"\\contents") {
        return Sorted(NamesFoundBy(Containing(text, location, true)));
    }

    void IgnoreCase() { Program().SendMenuCommand(COMMAND_CHECK_CASE); }
};

TEST_F(Content, with_regard_to_case_only_the_same_letters_are_found) {
    EXPECT_EQ(NamesContaining(L"abc"), (Names{L"after nul and line.txt", L"third line.txt"}));
}

TEST_F(Content, without_regard_to_case_every_spelling_is_found_up_to_the_first_empty_line) {
    IgnoreCase();
    EXPECT_EQ(NamesContaining(L"abc"),
              (Names{L"after nul and line.txt", L"mixed.txt", L"third line.txt", L"upper.txt"}));
    EXPECT_EQ(NamesContaining(L"ABC"),
              (Names{L"after nul and line.txt", L"mixed.txt", L"third line.txt", L"upper.txt"}));
}

TEST_F(Content, checking_the_option_again_brings_the_regard_to_case_back) {
    IgnoreCase();
    NamesContaining(L"abc");
    Program().SendMenuCommand(COMMAND_CHECK_CASE);
    EXPECT_EQ(NamesContaining(L"aBc"), (Names{L"mixed.txt"}));
}

TEST_F(Content, with_regard_to_case_an_empty_line_does_not_end_the_file) {
    EXPECT_EQ(NamesContaining(L"xxABC"), (Names{L"after empty line.txt", L"upper.txt"}));
}

TEST_F(Content, a_folder_is_never_a_row_when_a_content_is_asked_for) {
    EXPECT_EQ(NamesFoundBy([] {
                  NameConditions conditions = Containing(L"nothing", L"\\contents");
                  conditions.name = L"abc folder";
                  return conditions;
              }()),
              (Names{}));
    EXPECT_EQ(NamesContaining(L"nothing"), (Names{L"nothing.bin"}));
}

TEST_F(Content, a_content_of_blanks_is_a_condition) {
    EXPECT_EQ(NamesContaining(L"  "), (Names{L"spaces.txt"}));
}

TEST_F(Content, a_locked_file_does_not_hold_the_text_and_nothing_is_said) {
    const std::wstring path = Drive().Root() + L"contents\\third line.txt";
    const HANDLE lock = CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(INVALID_HANDLE_VALUE, lock);
    EXPECT_EQ(NamesContaining(L"abc"), (Names{L"after nul and line.txt"}));
    EXPECT_TRUE(Program().Dialogs().empty());
    CloseHandle(lock);
}

TEST_F(Content, japanese_text_is_found_in_shift_jis_alone) {
    // By the system's code page on a Japanese system, by the library beside the program on any other one.
    EXPECT_EQ(NamesContaining(L"日本", L"\\japanese"), (Names{L"shift-jis.txt"}));
}

TEST_F(Content, half_width_katakana_is_found_in_shift_jis) {
    EXPECT_EQ(NamesContaining(L"ｱｲ", L"\\japanese"), (Names{L"half-width.txt"}));
}

TEST_F(Content, without_regard_to_case_trail_bytes_are_folded_only_on_a_japanese_system) {
    IgnoreCase();
    if (World().japaneseSystem) {
        EXPECT_EQ(NamesContaining(L"ア", L"\\folding"), (Names{L"lower trail.txt", L"upper trail.txt"}));
    } else {
        EXPECT_EQ(NamesContaining(L"ア", L"\\folding"), (Names{L"upper trail.txt"}));
    }
}

TEST_F(Content, with_regard_to_case_trail_bytes_are_never_folded) {
    EXPECT_EQ(NamesContaining(L"ア", L"\\folding"), (Names{L"upper trail.txt"}));
    EXPECT_EQ(NamesContaining(L"ヂ", L"\\folding"), (Names{L"lower trail.txt"}));
}

// The program alone in a folder of its own, without the library that stands beside it otherwise.
class ContentWithoutLibrary : public Content {
  protected:
    void SetUp() override {
        wchar_t folder[MAX_PATH] = L"";
        GetTempPathW(MAX_PATH, folder);
        alone_ = std::wstring(folder) + L"quorinsearch-" + std::to_wstring(GetCurrentProcessId()) + L".exe";
        ASSERT_TRUE(CopyFileW(ProgramPath().c_str(), alone_.c_str(), FALSE));
        StartFresh(L"", alone_);
    }

    void TearDown() override {
        Program().Kill();
        DeleteFileW(alone_.c_str());
    }

    std::wstring alone_;
};

TEST_F(ContentWithoutLibrary, only_a_japanese_system_finds_shift_jis) {
    const Names expected = World().japaneseSystem ? Names{L"shift-jis.txt"} : Names{L"low bytes.txt"};
    EXPECT_EQ(NamesFoundBy(Containing(L"日本", L"\\japanese")), expected);
}

TEST_F(ContentWithoutLibrary, latin_text_is_found_everywhere) {
    EXPECT_EQ(NamesContaining(L"abc"), (Names{L"after nul and line.txt", L"third line.txt"}));
}

TEST_F(ContentWithoutLibrary, a_text_that_becomes_no_bytes_at_all_does_no_harm) {
    // The low byte of U+0100 is 0, so nothing is left of the text where only low bytes count.
    NamesContaining(L"\x0100");
    EXPECT_FALSE(Program().Searching());
    EXPECT_EQ(NamesContaining(L"aBc"), (Names{L"mixed.txt"}));
}
