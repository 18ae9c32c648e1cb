// Letters, numbers and texts on a system of any language: they are folded, compared, written and read as the
// rules say, not as the language has it. Turkish has four letters i: "i" with "İ", "ı" with "I".

#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "conditions/size_page.h"
#include "fileops/file_details.h"
#include "platform/name_wildcard.h"
#include "platform/windows_ce.h"
#include "resources/resource_ids.h"
#include "results/file_type_table.h"
#include "results/row_texts.h"
#include "results/shortcut_target.h"
#include "results/sort_keys.h"
#include "search/double_byte_text.h"
#include "tests/conditions/history_combo_fixture.h"
#include "tests/results/registered_types.h"

namespace {

int OrderOf(std::wstring first, std::wstring second) {
    FoldForComparison(first.data());
    FoldForComparison(second.data());
    return CompareFoldedTexts(first.c_str(), second.c_str());
}

std::wstring RowSize(DWORD size) {
    wchar_t text[RowTextCapacity];
    FormatResultSize(size, text);
    return text;
}

std::wstring SizeDetails(DWORD size) {
    wchar_t text[64];
    FormatSizeDetails(size, text, std::size(text));
    return text;
}

class SizesInPlace : public testing::Test {
  protected:
    // The bound of "Min" with what the spin has written for that many kilobytes.
    std::optional<std::uint32_t> BoundOf(int kilobytes) {
        SizePage page(&host_.Object(), nullptr);
        page.MarkAsPage();
        page.CreateModeless();
        SendDlgItemMessageW(page.Handle(), COMBO_FILE_SIZE, CB_SETCURSEL, 1, 0);
        SendDlgItemMessageW(page.Handle(), SPIN_KILOBYTES, UDM_SETPOS, 0, kilobytes);
        SearchQuery query;
        page.FillQuery(query);
        return query.sizeBound.bytes;
    }

  private:
    TestWorld world_;
    HostWindow host_;
};

}  // namespace

TEST(NamesInPlace, a_pattern_takes_the_english_letters_of_both_cases_and_no_others_for_the_same) {
    EXPECT_TRUE(MatchesWildcard(L"FILE.INI", L"file.ini"));
    EXPECT_TRUE(MatchesWildcard(L"file.ini", L"*.INI"));
    EXPECT_TRUE(MatchesWildcard(L"title.txt", L"TITLE*"));
    for (const wchar_t* other : {L"ı.txt", L"İ.txt"}) {
        EXPECT_FALSE(MatchesWildcard(other, L"i*")) << testing::PrintToString(std::wstring(other));
        EXPECT_FALSE(MatchesWildcard(other, L"I*")) << testing::PrintToString(std::wstring(other));
    }
}

TEST(NamesInPlace, a_pattern_takes_letters_of_every_script_without_regard_to_case) {
    EXPECT_TRUE(MatchesWildcard(L"STRASSE ÄÖÜ.txt", L"strasse äöü*"));
    EXPECT_TRUE(MatchesWildcard(L"ПРИМЕР", L"пример*"));
    EXPECT_TRUE(MatchesWildcard(L"ΔΕΛΤΑ", L"δελτα?") == false);
    EXPECT_TRUE(MatchesWildcard(L"中文.txt", L"中文*"));
    EXPECT_TRUE(MatchesWildcard(L"ملف.txt", L"ملف*"));
    EXPECT_FALSE(MatchesWildcard(L"straße", L"STRASSE*"));
}

TEST(OrderInPlace, the_sort_ignores_the_case_of_the_english_letters_alone) {
    EXPECT_EQ(OrderOf(L"TITLE", L"title"), 0);
    EXPECT_EQ(OrderOf(L"I", L"i"), 0);
    // By their units: "ı" is U+0131, "İ" is U+0130, and both come after every English letter.
    EXPECT_LT(0, OrderOf(L"ı", L"z"));
    EXPECT_LT(0, OrderOf(L"İ", L"Z"));
    EXPECT_LT(OrderOf(L"İ", L"ı"), 0);
    EXPECT_LT(OrderOf(L"Ä", L"ä"), 0);
}

TEST(ContentInPlace, the_bytes_of_the_english_letters_are_folded_and_no_others) {
    char bytes[] = "title \xFD\xDD\xE4\xC4 i";
    UpperCaseBytes(bytes, false);
    EXPECT_STREQ(bytes, "TITLE \xFD\xDD\xE4\xC4 I");
}

TEST(NumbersInPlace, sizes_are_written_without_groups_and_with_a_point) {
    EXPECT_EQ(RowSize(1048575), L"1023K");
    EXPECT_EQ(RowSize(0x7FFFFFFF), L"2047M");
    EXPECT_EQ(SizeDetails(102399), L"99.9KB (102399 bytes)");
    EXPECT_EQ(SizeDetails(2147483647), L"2097151KB (2147483647 bytes)");
}

TEST_F(SizesInPlace, the_kilobytes_count_in_whatever_groups_the_system_writes_them) {
    for (const int kilobytes : {7, 999, 1000, 2000, 32767})
        EXPECT_EQ(BoundOf(kilobytes), static_cast<std::uint32_t>(kilobytes) * 1024) << kilobytes;
}

TEST(TypesInPlace, an_extension_is_known_in_either_case) {
    RegisteredTypes types;
    types.Add(L".qsi", L"qs.inplace");
    RegSetKeyValueW(HKEY_CLASSES_ROOT, L".qsi", L"Default", REG_SZ, L"qs.inplace", 22);
    types.Add(L"qs.inplace", L"A kind");
    types.Add(L"qs.inplace\\Shell\\Open\\Command", L"\\none.exe");
    const FileTypeTable table;
    EXPECT_STREQ(table.TypeKeyOf(L"\\title.qsi"), L"qs.inplace");
    EXPECT_STREQ(table.TypeKeyOf(L"\\TITLE.QSI"), L"qs.inplace");
    EXPECT_STREQ(table.TypeKeyOf(L"\\title.qsı"), L"");
}

class HistoriesInPlace : public HistoryComboFixture {};

TEST_F(HistoriesInPlace, an_entry_gives_way_to_its_beginning_in_either_case_but_not_to_another_letter) {
    AddAll({L"x", L"title", L"ıssız", L"ISSIZ"});
    EXPECT_EQ(List(), (Entries{L"ISSIZ", L"ıssız", L"title", L"x"}));
    Add(L"TIT");
    EXPECT_EQ(List(), (Entries{L"TIT", L"ISSIZ", L"ıssız", L"x"}));
}
