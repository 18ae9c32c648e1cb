#include "conditions/search_history.h"
#include "base/registry_key.h"
#include "tests/conditions/history_combo_fixture.h"

namespace {

constexpr const wchar_t* TestsPath = L"Software\\QuorinSoftTests";
constexpr const wchar_t* Path = L"Software\\QuorinSoftTests\\History";

}  // namespace

class HistoryRegistry : public HistoryComboFixture {
  protected:
    void SetUp() override { ce::RegDeleteKeyW(HKEY_CURRENT_USER, TestsPath); }
    void TearDown() override { ce::RegDeleteKeyW(HKEY_CURRENT_USER, TestsPath); }

    bool Load() { return LoadHistory(Combo(), HKEY_CURRENT_USER, Path); }
    bool Save() { return SaveHistory(Combo(), HKEY_CURRENT_USER, Path); }

    void Write(const std::wstring& name, DWORD type, const void* data, std::size_t size) {
        RegistryKey key(HKEY_CURRENT_USER);
        ASSERT_TRUE(key.Create(Path));
        ASSERT_EQ(RegSetValueExW(key.Handle(), name.c_str(), 0, type, static_cast<const BYTE*>(data),
                                 static_cast<DWORD>(size)),
                  ERROR_SUCCESS);
    }
    // With its terminator.
    void WriteText(int number, const std::wstring& text) {
        Write(std::to_wstring(number), REG_SZ, text.c_str(), (text.size() + 1) * sizeof(wchar_t));
    }
    void WriteAll(const Entries& oldestFirst) {
        for (std::size_t i = 0; i < oldestFirst.size(); ++i)
            WriteText(static_cast<int>(i), oldestFirst[i]);
    }

    struct Value {
        LONG error;
        DWORD type;
        std::vector<wchar_t> units;
        bool operator==(const Value&) const = default;
    };
    static Value Read(const wchar_t* name) {
        Value value = {0, 0, std::vector<wchar_t>(600)};
        DWORD size = 1200;
        RegistryKey key(HKEY_CURRENT_USER);
        EXPECT_TRUE(key.Open(Path));
        value.error = RegQueryValueExW(key.Handle(), name, nullptr, &value.type,
                                       reinterpret_cast<BYTE*>(value.units.data()), &size);
        value.units.resize(value.error == ERROR_SUCCESS ? size / sizeof(wchar_t) : 0);
        return value;
    }
    // A text value as it is to be stored.
    static Value Text(const std::wstring& text) {
        std::vector<wchar_t> units(text.begin(), text.end());
        units.push_back(L'\0');
        return {ERROR_SUCCESS, REG_SZ, units};
    }
    static Value Missing() { return {ERROR_FILE_NOT_FOUND, 0, {}}; }
};

TEST_F(HistoryRegistry, a_missing_key_leaves_the_combo_as_it_is) {
    AddAll({L"*.txt", L"*.log"});
    EXPECT_FALSE(Load());
    EXPECT_EQ(List(), (Entries{L"*.log", L"*.txt"}));
    EXPECT_EQ(FieldText(), L"*.log");
}

TEST_F(HistoryRegistry, a_key_without_values_empties_the_combo) {
    RegistryKey key(HKEY_CURRENT_USER);
    ASSERT_TRUE(key.Create(Path));
    EXPECT_TRUE(Add(L"a"));
    EXPECT_TRUE(Load());
    EXPECT_EQ(List(), Entries());
}

TEST_F(HistoryRegistry, entries_are_saved_oldest_first_as_terminated_texts) {
    AddAll({L"*.txt", L"*.log"});
    EXPECT_TRUE(Save());
    EXPECT_EQ(Read(L"0"), Text(L"*.txt"));
    EXPECT_EQ(Read(L"1"), Text(L"*.log"));
    EXPECT_EQ(Read(L"2").error, Missing().error);
}

TEST_F(HistoryRegistry, an_empty_entry_is_saved_as_its_terminator) {
    EXPECT_TRUE(Add(L""));
    EXPECT_TRUE(Save());
    EXPECT_EQ(Read(L"0"), Text(L""));
}

TEST_F(HistoryRegistry, what_was_saved_comes_back_in_its_order_with_the_newest_selected) {
    AddAll({L"a", L"b", L"日本"});
    EXPECT_TRUE(Save());
    SendMessageW(Combo().Handle(), CB_RESETCONTENT, 0, 0);
    EXPECT_TRUE(Load());
    EXPECT_EQ(List(), (Entries{L"日本", L"b", L"a"}));
    EXPECT_EQ(Selected(), 0);
    EXPECT_EQ(FieldText(), L"日本");
}

TEST_F(HistoryRegistry, of_ten_saved_entries_the_nine_oldest_are_read_back) {
    for (wchar_t letter = L'a'; letter <= L'j'; ++letter)
        EXPECT_TRUE(Add(std::wstring(1, letter)));
    EXPECT_TRUE(Save());
    EXPECT_EQ(Read(L"9"), Text(L"j"));
    EXPECT_TRUE(Load());
    EXPECT_EQ(List(), (Entries{L"i", L"h", L"g", L"f", L"e", L"d", L"c", L"b", L"a"}));
}

TEST_F(HistoryRegistry, values_of_a_longer_earlier_list_stay) {
    WriteAll({L"old 0", L"old 1", L"old 2"});
    EXPECT_TRUE(Add(L"new"));
    EXPECT_TRUE(Save());
    EXPECT_EQ(Read(L"0"), Text(L"new"));
    EXPECT_EQ(Read(L"1"), Text(L"old 1"));
    EXPECT_EQ(Read(L"2"), Text(L"old 2"));
    EXPECT_TRUE(Load());
    EXPECT_EQ(List(), (Entries{L"old 2", L"old 1", L"new"}));
}

TEST_F(HistoryRegistry, loading_stops_at_the_first_missing_number) {
    WriteText(0, L"a");
    WriteText(2, L"c");
    EXPECT_TRUE(Load());
    EXPECT_EQ(List(), Entries{L"a"});
}

TEST_F(HistoryRegistry, loaded_entries_follow_the_rule_of_the_history) {
    WriteAll({L"\\Data\\Old", L"b", L"\\data"});
    EXPECT_TRUE(Load());
    EXPECT_EQ(List(), (Entries{L"\\data", L"b"}));
}

TEST_F(HistoryRegistry, a_text_without_a_terminator_is_read_whole) {
    Write(L"0", REG_SZ, L"abcX", 6);
    EXPECT_TRUE(Load());
    EXPECT_EQ(List(), Entries{L"abc"});
}

TEST_F(HistoryRegistry, a_text_with_half_a_unit_at_its_end_loses_the_half) {
    Write(L"0", REG_SZ, L"abX", 5);
    EXPECT_TRUE(Load());
    EXPECT_EQ(List(), Entries{L"ab"});
}

TEST_F(HistoryRegistry, a_text_of_no_size_is_an_empty_entry) {
    Write(L"0", REG_SZ, L"", 0);
    EXPECT_TRUE(Load());
    EXPECT_EQ(List(), Entries{L""});
}

TEST_F(HistoryRegistry, the_other_text_types_are_read_as_texts) {
    Write(L"0", REG_EXPAND_SZ, L"%x%", 8);
    Write(L"1", REG_MULTI_SZ, L"one\0two\0", 18);
    EXPECT_TRUE(Load());
    EXPECT_EQ(List(), (Entries{L"one", L"%x%"}));
}

TEST_F(HistoryRegistry, values_of_another_type_are_taken_as_their_bytes_stand) {
    const DWORD number = 0x00420041;
    Write(L"0", REG_DWORD, &number, sizeof number);
    Write(L"1", REG_BINARY, L"xy", 4);
    EXPECT_TRUE(Load());
    EXPECT_EQ(List(), (Entries{L"xy", L"AB"}));
}

TEST_F(HistoryRegistry, a_text_of_259_units_is_read_whole) {
    const std::wstring longest(259, L'x');
    WriteText(0, longest);
    EXPECT_TRUE(Load());
    EXPECT_EQ(List(), Entries{longest});
}

TEST_F(HistoryRegistry, a_text_that_fills_the_buffer_without_a_terminator_is_cut_at_259_units) {
    const std::wstring full(261, L'x');
    Write(L"0", REG_SZ, full.data(), 520);
    EXPECT_TRUE(Load());
    EXPECT_EQ(List(), Entries{std::wstring(259, L'x')});
}

TEST_F(HistoryRegistry, a_text_that_does_not_fit_ends_the_loading) {
    WriteText(0, L"a");
    WriteText(1, std::wstring(260, L'x'));
    WriteText(2, L"c");
    EXPECT_TRUE(Load());
    EXPECT_EQ(List(), Entries{L"a"});
}

TEST_F(HistoryRegistry, a_binary_value_that_does_not_fit_ends_the_loading) {
    const std::vector<BYTE> large(521, 0x41);
    Write(L"0", REG_BINARY, large.data(), large.size());
    EXPECT_TRUE(Add(L"before"));
    EXPECT_TRUE(Load());
    EXPECT_EQ(List(), Entries());
}

TEST_F(HistoryRegistry, a_key_that_cannot_be_created_is_silent) {
    EXPECT_TRUE(Add(L"a"));
    const HKEY nowhere = nullptr;
    EXPECT_FALSE(SaveHistory(Combo(), nowhere, Path));
    EXPECT_FALSE(LoadHistory(Combo(), nowhere, Path));
    EXPECT_EQ(List(), Entries{L"a"});
}

TEST_F(HistoryRegistry, a_text_of_259_units_without_a_terminator_is_read_whole) {
    const std::wstring text(260, L'x');
    Write(L"0", REG_SZ, text.data(), 518);
    EXPECT_TRUE(Load());
    EXPECT_EQ(List(), Entries{std::wstring(259, L'x')});
}

TEST_F(HistoryRegistry, an_odd_size_at_the_end_of_the_buffer_overruns_nothing) {
    const std::wstring text(261, L'x');
    for (const std::size_t size : {std::size_t{515}, std::size_t{517}, std::size_t{519}}) {
        Write(L"0", REG_SZ, text.data(), size);
        EXPECT_TRUE(Load());
        EXPECT_EQ(List(), Entries{std::wstring(size / 2, L'x')}) << size;
    }
}

// None of the units of an entry that was read before shows up behind a shorter one.
TEST_F(HistoryRegistry, an_entry_of_another_type_ends_where_its_bytes_do) {
    WriteText(0, std::wstring(200, L'x'));
    Write(L"1", REG_BINARY, "A", 1);
    Write(L"2", REG_NONE, nullptr, 0);
    const unsigned long long number = 0x0044004300420041;
    Write(L"3", REG_QWORD, &number, sizeof number);
    EXPECT_TRUE(Load());
    // The entry of no size takes the place of the first one after the top, which is the long one.
    EXPECT_EQ(List(), (Entries{L"ABCD", L"", L"A"}));
}

TEST_F(HistoryRegistry, a_text_with_an_end_in_its_middle_ends_there) {
    Write(L"0", REG_SZ, L"one\0two", 16);
    EXPECT_TRUE(Load());
    EXPECT_EQ(List(), Entries{L"one"});
}

TEST_F(HistoryRegistry, values_of_other_names_are_no_entries) {
    WriteText(0, L"a");
    Write(L"", REG_SZ, L"unnamed", 16);
    Write(L"00", REG_SZ, L"x", 4);
    Write(L"-1", REG_SZ, L"y", 4);
    EXPECT_TRUE(Load());
    EXPECT_EQ(List(), Entries{L"a"});
}

// Below a key that lives only as long as the system runs, none can be made that is to be kept.
TEST_F(HistoryRegistry, a_key_that_the_system_refuses_to_make_is_silent) {
    HKEY passing = nullptr;
    ASSERT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, TestsPath, 0, nullptr, REG_OPTION_VOLATILE, KEY_ALL_ACCESS,
                              nullptr, &passing, nullptr),
              ERROR_SUCCESS);
    RegCloseKey(passing);
    EXPECT_TRUE(Add(L"a"));
    EXPECT_FALSE(Save());
    EXPECT_FALSE(Load());
    EXPECT_EQ(List(), Entries{L"a"});
}
