#include "search/search_query.h"

#include <gtest/gtest.h>

#include <cstring>
#include <cwchar>
#include <string>

#include "base/program_context.h"
#include "platform/windows_ce.h"
#include "search/date_and_size.h"
#include "search/double_byte_text.h"
#include "search/text_conversion.h"
#include "tests/support/asked_query.h"

namespace {

constexpr ULONGLONG HourTicks = 36000000000ULL;

ULONGLONG TicksOf(const FILETIME& time) {
    return ULONGLONG{time.dwHighDateTime} << 32 | time.dwLowDateTime;
}

// The instant that the fields name when they are taken as UTC.
ULONGLONG UtcTicks(const SYSTEMTIME& time) {
    FILETIME fileTime = {};
    EXPECT_TRUE(SystemTimeToFileTime(&time, &fileTime));
    return TicksOf(fileTime);
}

FILETIME TimeOf(ULONGLONG ticks) {
    FILETIME time = {};
    time.dwHighDateTime = static_cast<DWORD>(ticks >> 32);
    time.dwLowDateTime = static_cast<DWORD>(ticks);
    return time;
}

// A device nine hours east of UTC.
BOOL FromNineHoursEast(const FILETIME* local, FILETIME* utc) {
    *utc = TimeOf(TicksOf(*local) - 9 * HourTicks);
    return TRUE;
}

void WritesAbc(const wchar_t*, char* destination, int destinationSize) {
    EXPECT_EQ(destinationSize, 520);
    strcpy(destination, "aBc");
}

class SearchQueryTest : public testing::Test {
  protected:
    SearchQueryTest() { ce::systemCalls.localFileTimeToFileTime = FromNineHoursEast; }
    ~SearchQueryTest() override {
        ce::systemCalls = systemCallsBefore_;
        ContextForStartUp() = contextBefore_;
    }

    void Fill() { FillConditions(query_, conditions_); }

    AskedQuery query_;
    SearchConditions conditions_;

  private:
    const ce::SystemCalls systemCallsBefore_ = ce::systemCalls;
    const ProgramContext contextBefore_ = Context();
};

}  // namespace

TEST_F(SearchQueryTest, a_query_without_a_condition_leaves_every_bit_clear) {
    conditions_.flags = 0xFFFF;
    Fill();
    EXPECT_EQ(conditions_.flags, 0);
}

TEST_F(SearchQueryTest, a_content_text_sets_its_bit_and_becomes_bytes) {
    query_.content = L"a\u00E9\u65E5";
    Fill();
    EXPECT_EQ(conditions_.flags, SearchConditions::ContentString);
    EXPECT_STREQ(conditions_.contentPattern, "a\xE9\xE5");
}

TEST_F(SearchQueryTest, a_content_text_of_spaces_counts) {
    query_.content = L"   ";
    Fill();
    EXPECT_EQ(conditions_.flags, SearchConditions::ContentString);
    EXPECT_STREQ(conditions_.contentPattern, "   ");
}

TEST_F(SearchQueryTest, a_content_text_that_converts_to_nothing_still_sets_its_bit) {
    query_.content = L"\u0100abc";
    Fill();
    EXPECT_EQ(conditions_.flags, SearchConditions::ContentString);
    EXPECT_STREQ(conditions_.contentPattern, "");
}

TEST_F(SearchQueryTest, the_conversion_of_the_start_up_record_is_used_with_520_bytes) {
    ContextForStartUp().toMultiByte = WritesAbc;
    query_.content = L"x";
    Fill();
    EXPECT_STREQ(conditions_.contentPattern, "aBc");
}

TEST_F(SearchQueryTest, the_pattern_is_folded_only_if_case_is_ignored) {
    query_.content = L"abc";
    Fill();
    EXPECT_EQ(conditions_.flags, SearchConditions::ContentString);
    EXPECT_STREQ(conditions_.contentPattern, "abc");
    query_.ignoreCase = true;
    Fill();
    EXPECT_EQ(conditions_.flags, SearchConditions::ContentString | SearchConditions::IgnoreCase);
    EXPECT_STREQ(conditions_.contentPattern, "ABC");
}

TEST_F(SearchQueryTest, double_byte_characters_are_folded_only_without_the_conversion_library) {
    ContextForStartUp().toMultiByte = [](const wchar_t*, char* destination, int) {
        strcpy(destination, "a\x83\x61");
    };
    query_.content = L"x";
    query_.ignoreCase = true;
    Fill();
    EXPECT_STREQ(conditions_.contentPattern, "A\x83\x41");
    ContextForStartUp().codeConversionAvailable = true;
    Fill();
    EXPECT_STREQ(conditions_.contentPattern, "A\x83\x61");
}

TEST_F(SearchQueryTest, an_older_pattern_is_folded_although_there_is_no_content_text) {
    strcpy(conditions_.contentPattern, "old");
    query_.ignoreCase = true;
    Fill();
    EXPECT_EQ(conditions_.flags, SearchConditions::IgnoreCase);
    EXPECT_STREQ(conditions_.contentPattern, "OLD");
}

TEST_F(SearchQueryTest, the_type_filter_sets_its_bit) {
    query_.typeFilter = true;
    Fill();
    EXPECT_EQ(conditions_.flags, SearchConditions::TypeFilter);
}

TEST_F(SearchQueryTest, sub_folders_set_their_bit) {
    query_.subFolders = true;
    Fill();
    EXPECT_EQ(conditions_.flags, SearchConditions::SubFolders);
}

TEST_F(SearchQueryTest, the_ends_of_a_date_range_are_taken_as_local_times) {
    query_.dateRange = BetweenDates({2002, 1, 0, 10, 5, 5, 5, 5}, {2002, 1, 0, 12, 5, 5, 5, 5});
    Fill();
    EXPECT_EQ(conditions_.flags, SearchConditions::DateRange);
    // Midnight nine hours east of UTC is 15:00 UTC of the day before.
    EXPECT_EQ(TicksOf(conditions_.fromTime), UtcTicks({2002, 1, 0, 9, 15, 0, 0, 0}));
    EXPECT_EQ(TicksOf(conditions_.toTime), UtcTicks({2002, 1, 0, 11, 15, 0, 0, 0}));
}

TEST_F(SearchQueryTest, between_a_day_and_itself_only_its_first_local_instant_passes) {
    query_.dateRange = BetweenDates({2002, 1, 0, 10, 0, 0, 0, 0}, {2002, 1, 0, 10, 0, 0, 0, 0});
    Fill();
    const ULONGLONG midnight = UtcTicks({2002, 1, 0, 9, 15, 0, 0, 0});
    WIN32_FIND_DATAW entry = {};
    entry.ftLastWriteTime = TimeOf(midnight);
    EXPECT_TRUE(PassesDateAndSize(conditions_, entry));
    entry.ftLastWriteTime = TimeOf(midnight + 1);
    EXPECT_FALSE(PassesDateAndSize(conditions_, entry));
    entry.ftLastWriteTime = TimeOf(midnight - 1);
    EXPECT_FALSE(PassesDateAndSize(conditions_, entry));
}

TEST_F(SearchQueryTest, past_0_days_at_one_in_the_morning_nine_hours_east_ends_nine_hours_ago) {
    // 01:00 local of 10 January is 16:00 UTC of 9 January.
    const SYSTEMTIME nowUtc = {2002, 1, 3, 9, 16, 0, 0, 0};
    query_.dateRange = PastDays(nowUtc, 0);
    Fill();
    // From midnight of 9 January read as local, 15:00 UTC of 8 January.
    EXPECT_EQ(TicksOf(conditions_.fromTime), UtcTicks({2002, 1, 0, 8, 15, 0, 0, 0}));
    EXPECT_EQ(TicksOf(conditions_.toTime), UtcTicks(nowUtc) - 9 * HourTicks);
}

TEST_F(SearchQueryTest, a_date_that_cannot_be_converted_is_not_noticed) {
    ce::systemCalls.localFileTimeToFileTime = [](const FILETIME*, FILETIME*) -> BOOL { return FALSE; };
    conditions_.fromTime = TimeOf(77);
    query_.dateRange = DateRange{};
    Fill();
    EXPECT_EQ(conditions_.flags, SearchConditions::DateRange);
    EXPECT_EQ(TicksOf(conditions_.fromTime), 77U);
}

TEST_F(SearchQueryTest, without_a_range_the_older_times_stay_and_the_bit_is_clear) {
    conditions_.flags = SearchConditions::DateRange;
    conditions_.fromTime = TimeOf(77);
    Fill();
    EXPECT_EQ(conditions_.flags, 0);
    EXPECT_EQ(TicksOf(conditions_.fromTime), 77U);
}

TEST_F(SearchQueryTest, min_with_10_sets_size_above_and_10240_bytes) {
    query_.sizeBound = SizeBoundOf(1, 10);
    Fill();
    EXPECT_EQ(conditions_.flags, SearchConditions::SizeAbove);
    EXPECT_EQ(conditions_.sizeBound, 10240U);
}

TEST_F(SearchQueryTest, max_with_10_sets_size_below_and_10240_bytes) {
    query_.sizeBound = SizeBoundOf(2, 10);
    Fill();
    EXPECT_EQ(conditions_.flags, SearchConditions::SizeBelow);
    EXPECT_EQ(conditions_.sizeBound, 10240U);
}

TEST_F(SearchQueryTest, the_empty_size_entry_writes_a_bound_of_0_and_no_selection_keeps_the_older_one) {
    conditions_.sizeBound = 77;
    query_.sizeBound = SizeBoundOf(-1, 10);
    Fill();
    EXPECT_EQ(conditions_.sizeBound, 77U);
    query_.sizeBound = SizeBoundOf(0, 10);
    Fill();
    EXPECT_EQ(conditions_.sizeBound, 0U);
    EXPECT_EQ(conditions_.flags, 0);
}

TEST_F(SearchQueryTest, all_conditions_stand_together) {
    query_.content = L"x";
    query_.ignoreCase = true;
    query_.subFolders = true;
    query_.dateRange = BetweenDates({2002, 1, 0, 10, 0, 0, 0, 0}, {2002, 1, 0, 10, 0, 0, 0, 0});
    query_.typeFilter = true;
    query_.sizeBound = SizeBoundOf(1, 0);
    Fill();
    EXPECT_EQ(conditions_.flags, 0x1307);
}

TEST_F(SearchQueryTest, the_260th_unit_of_the_content_text_counts_in_every_conversion) {
    const std::string bytes = std::string(259, 'x') + 'y';
    query_.content = std::wstring(bytes.begin(), bytes.end());
    for (const ToMultiByteRoutine conversion :
         {&DefaultToMultiByte, &LibraryToMultiByte, &SystemToMultiByte}) {
        ContextForStartUp().toMultiByte = conversion;
        Fill();
        EXPECT_EQ(bytes, conditions_.contentPattern);
    }
}

TEST_F(SearchQueryTest, a_content_text_of_more_than_519_bytes_is_cut_at_the_last_character_that_fits) {
    UseConversionLibrary([](unsigned short unit) -> unsigned short { return unit == L'あ' ? 0x82A0 : 0; },
                         nullptr);
    ContextForStartUp().toMultiByte = &LibraryToMultiByte;
    query_.content = std::wstring(260, L'あ');
    Fill();
    UseConversionLibrary(nullptr, nullptr);
    // A pair of which only the first byte fits is cut there.
    EXPECT_EQ(std::strlen(conditions_.contentPattern), 519U);
    if (GetACP() != 932) return;
    ContextForStartUp().toMultiByte = &SystemToMultiByte;
    Fill();
    EXPECT_EQ(std::strlen(conditions_.contentPattern), 518U);
}
