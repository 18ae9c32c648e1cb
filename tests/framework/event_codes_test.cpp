#include "framework/event_codes.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace {

constexpr EventCode NoEvent = 999;

struct Pair {
    int native;
    EventCode code;
};

struct ClassTable {
    const wchar_t* className;
    const char* name;
    std::vector<Pair> pairs;
};

// What each control reports, in the order of the unsigned codes.
const ClassTable Tables[] = {
    {L"ListBox", "ListBox", {{1, 121}, {2, 32}, {3, 120}, {4, 130}, {5, 86}, {-2, 48}}},
    {L"Edit",
     "Edit",
     {{0x100, 130},
      {0x200, 86},
      {0x300, 13},
      {0x400, 145},
      {0x500, 48},
      {0x501, 89},
      {0x601, 67},
      {0x602, 147}}},
    {L"Button", "Button", {{0, 0}, {1, 103}, {2, 66}, {3, 144}, {4, 30}, {5, 33}, {6, 130}, {7, 86}}},
    {L"ReBarWindow32", "ReBarWindow32", {{-836, 44}, {-835, 5}, {-834, 3}, {-833, 87}, {-831, 62}}},
    {L"msctls_updown32", "msctls_updown32", {{-722, 29}}},
    {L"combobox",
     "combobox",
     {{1, 121},
      {2, 32},
      {3, 130},
      {4, 86},
      {5, 40},
      {6, 41},
      {7, 38},
      {8, 18},
      {9, 125},
      {10, 124},
      {-1, 48}}},
    {L"SysDateTimePick32",
     "SysDateTimePick32",
     {{-759, 24}, {-754, 38}, {-753, 18}, {-745, 146}, {-744, 151}, {-743, 52}, {-742, 53}}},
    {L"SysListView32",
     "SysListView32",
     {{-179, 98},
      {-178, 129},
      {-177, 56},
      {-176, 46},
      {-175, 7},
      {-156, 88},
      {-155, 84},
      {-115, 99},
      {-114, 75},
      {-113, 97},
      {-111, 8},
      {-109, 5},
      {-108, 19},
      {-104, 25},
      {-103, 26},
      {-102, 74},
      {-101, 76},
      {-100, 77}}},
    {L"SysTreeView32",
     "SysTreeView32",
     {{-460, 46},
      {-459, 7},
      {-458, 26},
      {-457, 8},
      {-456, 5},
      {-455, 80},
      {-454, 81},
      {-453, 129},
      {-452, 56},
      {-451, 122},
      {-450, 123},
      {-412, 84}}},
    {L"SysTabControl32", "SysTabControl32", {{-552, 123}, {-551, 121}, {-550, 84}}},
};

class NativeCodesOfEachClass : public testing::TestWithParam<ClassTable> {};

TEST_P(NativeCodesOfEachClass, are_exactly_these_pairs_in_this_order) {
    const NativeCodeTable table = NativeCodesOfClass(GetParam().className);
    ASSERT_EQ(table.size(), GetParam().pairs.size());
    for (std::size_t i = 0; i < table.size(); ++i) {
        EXPECT_EQ(table[i].native, static_cast<std::uint32_t>(GetParam().pairs[i].native)) << i;
        EXPECT_EQ(table[i].code, GetParam().pairs[i].code) << i;
    }
}

TEST_P(NativeCodesOfEachClass, are_each_found_and_their_neighbours_are_not) {
    const NativeCodeTable table = NativeCodesOfClass(GetParam().className);
    const auto listed = [](std::uint32_t code) {
        for (const Pair& pair : GetParam().pairs) {
            if (static_cast<std::uint32_t>(pair.native) == code) return true;
        }
        return false;
    };
    for (const Pair& pair : GetParam().pairs) {
        const auto native = static_cast<std::uint32_t>(pair.native);
        EXPECT_EQ(TranslateNativeCode(table, native, NoEvent), pair.code) << pair.native;
        for (const std::uint32_t neighbour : {native - 1, native + 1}) {
            if (!listed(neighbour)) {
                EXPECT_EQ(TranslateNativeCode(table, neighbour, NoEvent), NoEvent) << pair.native;
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Classes, NativeCodesOfEachClass, testing::ValuesIn(Tables),
                         [](const auto& row) { return std::string(row.param.name); });

// Their contents follow the pattern of the others; what is fixed is how many there are.
TEST(NativeCodes, of_header_calendar_and_address_are_11_3_and_none) {
    EXPECT_EQ(NativeCodesOfClass(L"SysHeader32").size(), 11U);
    EXPECT_EQ(NativeCodesOfClass(L"SysMonthCal32").size(), 3U);
    EXPECT_EQ(NativeCodesOfClass(L"SysIPAddress32").size(), 0U);
}

TEST(NativeCodes, of_every_class_are_sorted_as_unsigned_numbers_without_a_repetition) {
    const wchar_t* const classes[] = {L"ListBox",       L"Edit",           L"Button",
                                      L"ReBarWindow32", L"combobox",       L"SysDateTimePick32",
                                      L"SysHeader32",   L"SysListView32",  L"SysMonthCal32",
                                      L"SysTreeView32", L"SysTabControl32"};
    for (const wchar_t* name : classes) {
        const NativeCodeTable table = NativeCodesOfClass(name);
        ASSERT_GE(table.size(), 3U);
        for (std::size_t i = 1; i < table.size(); ++i)
            EXPECT_LT(table[i - 1].native, table[i].native) << i;
    }
}

TEST(NativeCodes, of_a_combo_box_spelt_with_capitals_do_not_exist) {
    EXPECT_EQ(NativeCodesOfClass(L"ComboBox").size(), 0U);
    EXPECT_EQ(NativeCodesOfClass(L"COMBOBOX").size(), 0U);
    EXPECT_EQ(NativeCodesOfClass(L"combobox").size(), 11U);
}

TEST(NativeCodes, are_known_by_the_exact_spelling_of_the_class_only) {
    const wchar_t* const strangers[] = {
        L"",        L"edit",   L"Edi",       L"Edit2",         L"EDIT",        L"button",        L"listbox",
        L"Listbox", L"Static", L"ComboLBox", L"syslistview32", L"SysListView", L"SysTreeView321"};
    for (const wchar_t* name : strangers)
        EXPECT_EQ(NativeCodesOfClass(name).size(), 0U);
}

TEST(NativeCodes, give_event_0_for_what_they_lack) {
    EXPECT_EQ(TranslateNativeCode(NativeCodesOfClass(L"Edit"), 0x700), 0U);
    EXPECT_EQ(TranslateNativeCode(NativeCodesOfClass(L"Edit"), 0), 0U);
    EXPECT_EQ(TranslateNativeCode({}, 5), 0U);
}

TEST(NativeCodes, of_a_table_with_one_pair_are_found) {
    const NativeCode one[] = {{7, 90}};
    EXPECT_EQ(TranslateNativeCode(one, 7), 90U);
    EXPECT_EQ(TranslateNativeCode(one, 6), 0U);
    EXPECT_EQ(TranslateNativeCode(one, 8), 0U);
}

// Everything else a window leaves to the control.
TEST(NativeCodes, common_to_all_controls_know_the_double_click_only) {
    ASSERT_EQ(CommonNotificationCodes().size(), 1U);
    EXPECT_EQ(TranslateNativeCode(CommonNotificationCodes(), static_cast<std::uint32_t>(-3), NoEvent), 32U);
    EXPECT_EQ(TranslateNativeCode(CommonNotificationCodes(), static_cast<std::uint32_t>(-2), NoEvent),
              NoEvent);
}

TEST(EventCodes, have_their_numbers) {
    struct Row {
        EventCode code;
        EventCode number;
    };
    const Row rows[] = {
        {event::Command, 0},           {event::DrawItem, 37},        {event::DialogRun, 49},
        {event::HorizontalScroll, 67}, {event::VerticalScroll, 147}, {event::RaiseAsCommand, 90},
        {event::AskControl, 96},       {event::KeyDown, 84},         {event::SelectionChanged, 121},
        {event::ItemChanged, 76},      {event::EndLabelEdit, 46},
    };
    for (const Row& row : rows)
        EXPECT_EQ(row.code, row.number);
}

// They share the numbering with what stands for native codes, and must not be taken for one of them.
TEST(EventCodes, of_a_field_s_keys_are_none_of_the_codes_of_notifications) {
    for (const ClassTable& table : Tables) {
        for (const Pair& pair : table.pairs) {
            EXPECT_NE(pair.code, event::EnterKey);
            EXPECT_NE(pair.code, event::TabKey);
        }
    }
    EXPECT_NE(event::EnterKey, event::TabKey);
}

}  // namespace
