// The three condition pages in the running program.

#include <windows.h>

#include <commctrl.h>

#include <algorithm>

#include "resources/resource_ids.h"
#include "tests/program/program_test.h"
#include "tests/support/user_input.h"

namespace {

std::wstring ClockDate(int monthsBack) {
    SYSTEMTIME now = {};
    GetSystemTime(&now);
    int month = now.wMonth - monthsBack;
    int year = now.wYear;
    if (month < 1) {
        month += 12;
        --year;
    }
    return std::to_wstring(year) + L"-" + std::to_wstring(month) + L"-" + std::to_wstring(now.wDay);
}

std::wstring DateOf(const PickerState& picker) {
    return std::to_wstring(picker.time.wYear) + L"-" + std::to_wstring(picker.time.wMonth) + L"-" +
           std::to_wstring(picker.time.wDay);
}

bool DayExists(const std::wstring& date) {
    int year = 0, month = 0, day = 0;
    swscanf(date.c_str(), L"%d-%d-%d", &year, &month, &day);
    const SYSTEMTIME time = TimeOf(year, month, day);
    FILETIME converted;
    return SystemTimeToFileTime(&time, &converted) != FALSE;
}

}  // namespace

class PagesAtStart : public ProgramTest {
  protected:
    void SetUp() override {
        if (!Program().IsRunning()) StartFresh();
    }
};

class Pages : public ProgramTest {
  protected:
    void ExpectDateControls(bool pickers, bool days) {
        EXPECT_EQ(Program().Control(DatePage, PICKER_FROM).enabled, pickers);
        EXPECT_EQ(Program().Control(DatePage, PICKER_TO).enabled, pickers);
        EXPECT_EQ(Program().Control(DatePage, EDIT_DAYS).enabled, days);
        EXPECT_EQ(Program().Control(DatePage, SPIN_DAYS).enabled, days);
    }
};

TEST_F(PagesAtStart, on_the_first_start_the_name_shows_log_and_offers_log_and_txt) {
    EXPECT_EQ(Program().Control(NamePage, COMBO_NAME).text, L"*.log");
    const ComboState combo = Program().Combo(NamePage, COMBO_NAME);
    EXPECT_EQ(combo.entries, (Names{L"*.log", L"*.txt"}));
    EXPECT_EQ(combo.selected, 0);
}

TEST_F(PagesAtStart, the_other_fields_of_the_name_page_start_empty) {
    EXPECT_EQ(Program().Control(NamePage, COMBO_LOCATION).text, L"");
    EXPECT_TRUE(Program().Combo(NamePage, COMBO_LOCATION).entries.empty());
    EXPECT_EQ(Program().Control(NamePage, EDIT_CONTENT).text, L"");
    EXPECT_EQ(Program().Control(NamePage, CHECK_SUBFOLDERS).checked, 0);
    EXPECT_EQ(Program().Control(NamePage, EDIT_CONTENT).textLimit, 260);
}

TEST_F(PagesAtStart, the_controls_carry_their_texts) {
    EXPECT_EQ(Program().Control(NamePage, BUTTON_BROWSE).text, Shown(L"&Browse", L"参照(&B)"));
    EXPECT_EQ(Program().Control(NamePage, CHECK_SUBFOLDERS).text,
              Shown(L"Include &Subfolders", L"ｻﾌﾞﾌｫﾙﾀﾞも探す(&S)"));
    EXPECT_EQ(Program().Control(DatePage, RADIO_ALL_FILES).text, Shown(L"&All Files", L"すべてのﾌｧｲﾙ(&A)"));
    EXPECT_EQ(Program().Control(DatePage, RADIO_BETWEEN).text, Shown(L"&Between", L"日付指定(&B)"));
    EXPECT_EQ(Program().Control(DatePage, RADIO_PAST).text, Shown(L"Paste&d", L"過去(&D)"));
}

TEST_F(PagesAtStart, the_date_page_asks_for_all_files_and_the_rest_is_disabled) {
    EXPECT_EQ(Program().Control(DatePage, RADIO_ALL_FILES).checked, BST_CHECKED);
    EXPECT_EQ(Program().Control(DatePage, RADIO_BETWEEN).checked, BST_UNCHECKED);
    EXPECT_EQ(Program().Control(DatePage, RADIO_PAST).checked, BST_UNCHECKED);
    for (const int id : {PICKER_FROM, PICKER_TO, EDIT_DAYS, SPIN_DAYS}) {
        EXPECT_FALSE(Program().Control(DatePage, id).enabled) << id;
    }
    for (const int id : {RADIO_ALL_FILES, RADIO_BETWEEN, RADIO_PAST}) {
        EXPECT_TRUE(Program().Control(DatePage, id).enabled) << id;
    }
}

TEST_F(PagesAtStart, the_pickers_show_today_by_utc_and_three_months_before) {
    const std::wstring today = ClockDate(0);
    const std::wstring earlier = ClockDate(3);
    EXPECT_EQ(DateOf(Program().Picker(DatePage, PICKER_TO)), today);
    // A day that the earlier month lacks is for the picker to refuse.
    EXPECT_EQ(DateOf(Program().Picker(DatePage, PICKER_FROM)), DayExists(earlier) ? earlier : today);
}

TEST_F(PagesAtStart, the_days_spin_runs_from_1_to_999_and_starts_at_1) {
    const SpinState spin = Program().Spin(DatePage, SPIN_DAYS);
    EXPECT_EQ(spin.lower, 1);
    EXPECT_EQ(spin.upper, 999);
    EXPECT_EQ(spin.position, 1);
    EXPECT_EQ(Program().Control(DatePage, EDIT_DAYS).text, L"1");
}

TEST_F(PagesAtStart, the_size_page_offers_no_bound_min_and_max_over_0_to_32767_kilobytes) {
    EXPECT_EQ(Program().Combo(SizePage, COMBO_FILE_SIZE).entries,
              (Names{L"", Shown(L"Min", L"最低"), Shown(L"Max", L"最高")}));
    EXPECT_EQ(Program().Combo(SizePage, COMBO_FILE_SIZE).selected, 0);
    const SpinState spin = Program().Spin(SizePage, SPIN_KILOBYTES);
    EXPECT_EQ(spin.lower, 0);
    EXPECT_EQ(spin.upper, 32767);
    EXPECT_EQ(Program().Control(SizePage, EDIT_KILOBYTES).text, L"");
}

TEST_F(PagesAtStart, the_file_types_begin_with_all_files_and_folders_which_is_chosen) {
    const ComboState types = Program().Combo(SizePage, COMBO_FILE_TYPE);
    ASSERT_FALSE(types.entries.empty());
    EXPECT_EQ(types.entries[0], Shown(L"All files and folders", L"すべてのﾌｧｲﾙとﾌｫﾙﾀﾞ"));
    EXPECT_EQ(types.selected, 0);
}

TEST_F(PagesAtStart, every_control_of_every_page_lies_within_the_tab_control) {
    const HWND tab = FindWindowExW(Program().Window(), nullptr, WC_TABCONTROLW, nullptr);
    RECT area = {};
    GetWindowRect(tab, &area);
    const std::pair<int, int> controls[] = {
        {NamePage, COMBO_NAME},      {NamePage, EDIT_CONTENT},     {NamePage, COMBO_LOCATION},
        {NamePage, BUTTON_BROWSE},   {NamePage, CHECK_SUBFOLDERS}, {DatePage, RADIO_ALL_FILES},
        {DatePage, RADIO_BETWEEN},   {DatePage, RADIO_PAST},       {DatePage, PICKER_FROM},
        {DatePage, PICKER_TO},       {DatePage, EDIT_DAYS},        {DatePage, SPIN_DAYS},
        {SizePage, COMBO_FILE_TYPE}, {SizePage, COMBO_FILE_SIZE},  {SizePage, EDIT_KILOBYTES},
        {SizePage, SPIN_KILOBYTES}};
    for (const auto& [page, id] : controls) {
        const RECT place = Program().Control(page, id).rectangle;
        EXPECT_TRUE(place.left >= area.left && place.right <= area.right) << "page " << page << ", " << id;
        EXPECT_TRUE(place.top >= area.top && place.bottom <= area.bottom) << "page " << page << ", " << id;
    }
}

TEST_F(Pages, all_files_disables_pickers_and_days) {
    Program().Click(DatePage, RADIO_BETWEEN);
    Program().Click(DatePage, RADIO_ALL_FILES);
    ExpectDateControls(false, false);
}

TEST_F(Pages, between_enables_the_pickers_alone) {
    Program().Click(DatePage, RADIO_BETWEEN);
    ExpectDateControls(true, false);
}

TEST_F(Pages, past_days_enables_the_days_alone_and_leaves_the_size_page_as_it_is) {
    Program().Click(DatePage, RADIO_PAST);
    ExpectDateControls(false, true);
    EXPECT_TRUE(Program().Control(SizePage, EDIT_KILOBYTES).enabled);
    EXPECT_TRUE(Program().Control(SizePage, SPIN_KILOBYTES).enabled);
}

TEST_F(Pages, new_condition_empties_name_and_location_and_leaves_content_subfolders_and_histories) {
    NameConditions conditions = Containing(L"kept", L"\\names", true);
    conditions.name = L"abc";
    Program().Fill(conditions);
    const Names history = Program().Combo(NamePage, COMBO_NAME).entries;
    Program().SendMenuCommand(COMMAND_NEW_CONDITION);
    EXPECT_EQ(Program().Control(NamePage, COMBO_NAME).text, L"");
    EXPECT_EQ(Program().Control(NamePage, COMBO_LOCATION).text, L"");
    EXPECT_EQ(Program().Control(NamePage, EDIT_CONTENT).text, L"kept");
    EXPECT_EQ(Program().Control(NamePage, CHECK_SUBFOLDERS).checked, BST_CHECKED);
    EXPECT_EQ(Program().Combo(NamePage, COMBO_NAME).entries, history);
}

TEST_F(Pages, new_condition_resets_the_date_page) {
    Program().Click(DatePage, RADIO_PAST);
    Program().SetSpin(DatePage, SPIN_DAYS, 77);
    Program().SetDate(DatePage, PICKER_FROM, 20020110);
    Program().SetDate(DatePage, PICKER_TO, 20020110);
    Program().SendMenuCommand(COMMAND_NEW_CONDITION);
    EXPECT_EQ(Program().Control(DatePage, RADIO_ALL_FILES).checked, BST_CHECKED);
    EXPECT_EQ(Program().Control(DatePage, RADIO_PAST).checked, BST_UNCHECKED);
    ExpectDateControls(false, false);
    EXPECT_EQ(Program().Spin(DatePage, SPIN_DAYS).position, 1);
    EXPECT_EQ(DateOf(Program().Picker(DatePage, PICKER_TO)), ClockDate(0));
}

TEST_F(Pages, new_condition_resets_the_size_page) {
    Program().SelectEntry(SizePage, COMBO_FILE_SIZE, 2);
    Program().SetSpin(SizePage, SPIN_KILOBYTES, 10);
    ASSERT_EQ(Program().Control(SizePage, EDIT_KILOBYTES).text, L"10");
    Program().SendMenuCommand(COMMAND_NEW_CONDITION);
    EXPECT_EQ(Program().Combo(SizePage, COMBO_FILE_TYPE).selected, 0);
    EXPECT_EQ(Program().Combo(SizePage, COMBO_FILE_SIZE).selected, 0);
    EXPECT_EQ(Program().Control(SizePage, EDIT_KILOBYTES).text, L"");
}

TEST_F(Pages, after_new_condition_a_search_starts_at_the_root_with_every_name) {
    Program().Fill(Named(L"abc", L"\\names"));
    Program().SendMenuCommand(COMMAND_NEW_CONDITION);
    Program().Find();
    const Names names = Program().RowNames();
    EXPECT_NE(names.end(), std::find(names.begin(), names.end(), L"top.txt"));
    EXPECT_NE(names.end(), std::find(names.begin(), names.end(), L"empty"));
    for (const RowState& row : Program().Rows())
        EXPECT_EQ(row.folder, L"\\");
}

TEST_F(Pages, the_content_field_takes_no_more_than_260_typed_units) {
    Program().FocusControl(NamePage, EDIT_CONTENT);
    TypeText(std::wstring(270, L'x'));
    Program().WaitForQueue();
    EXPECT_TRUE(HoldsWithin(StepDeadline,
                            [&] { return Program().Control(NamePage, EDIT_CONTENT).text.size() == 260; }));
    // The keys that came too many are in the queue still; none of them may get in.
    PressKey(VK_HOME);
    Sleep(200);
    EXPECT_EQ(Program().Control(NamePage, EDIT_CONTENT).text, std::wstring(260, L'x'));
}
