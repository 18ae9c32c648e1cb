#include "tests/results/properties_test.h"

#include <fstream>
#include <sstream>

#include "resources/resource_ids.h"

namespace {

constexpr SYSTEMTIME WrittenUtc = {2002, 7, 1, 15, 0, 5, 30, 0};
constexpr SYSTEMTIME WrittenHere = {2002, 7, 1, 15, 9, 5, 30, 0};

struct Run {
    const std::function<void(const OpenSheet&)>* doing;
    int button;
    bool done;
};
Run run;

BOOL CALLBACK TakeSheet(HWND window, LPARAM result) {
    if (!IsWindowVisible(window) || FindWindowExW(window, nullptr, WC_TABCONTROLW, nullptr) == nullptr)
        return TRUE;
    *reinterpret_cast<HWND*>(result) = window;
    return FALSE;
}

void CALLBACK WaitForSheet(HWND, UINT, UINT_PTR timer, DWORD) {
    HWND sheet = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), TakeSheet, reinterpret_cast<LPARAM>(&sheet));
    if (sheet == nullptr) return;
    KillTimer(nullptr, timer);
    run.done = true;
    if (*run.doing) (*run.doing)(OpenSheet(sheet));
    PostMessageW(sheet, WM_COMMAND, static_cast<WPARAM>(run.button), 0);
}

std::wstring TextOf(HWND window) {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)), L'\0');
    GetWindowTextW(window, text.data(), static_cast<int>(text.size()) + 1);
    return text;
}

HWND TabsOf(HWND sheet) {
    return reinterpret_cast<HWND>(SendMessageW(sheet, PSM_GETTABCONTROL, 0, 0));
}

}  // namespace

std::wstring OpenSheet::Caption() const {
    return TextOf(sheet_);
}

std::vector<std::wstring> OpenSheet::Tabs() const {
    std::vector<std::wstring> tabs;
    const auto count = static_cast<int>(SendMessageW(TabsOf(sheet_), TCM_GETITEMCOUNT, 0, 0));
    for (int i = 0; i < count; ++i) {
        wchar_t text[64] = L"";
        TCITEMW item = {};
        item.mask = TCIF_TEXT;
        item.pszText = text;
        item.cchTextMax = 64;
        SendMessageW(TabsOf(sheet_), TCM_GETITEMW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&item));
        tabs.emplace_back(text);
    }
    return tabs;
}

void OpenSheet::TurnTo(int page) const {
    SendMessageW(sheet_, PSM_SETCURSEL, static_cast<WPARAM>(page), 0);
}

HWND OpenSheet::Page() const {
    return reinterpret_cast<HWND>(SendMessageW(sheet_, PSM_GETCURRENTPAGEHWND, 0, 0));
}

std::wstring OpenSheet::Text(int id) const {
    const HWND control = GetDlgItem(Page(), id);
    EXPECT_NE(control, nullptr) << id;
    return TextOf(control);
}

bool OpenSheet::IsShown(int id) const {
    return IsWindowVisible(GetDlgItem(Page(), id)) != FALSE;
}

bool OpenSheet::HasIcon() const {
    return SendDlgItemMessageW(Page(), STATIC_ICON, STM_GETIMAGE, IMAGE_ICON, 0) != 0;
}

bool OpenSheet::ShowsWhole(int id) const {
    const HWND control = GetDlgItem(Page(), id);
    const std::wstring text = TextOf(control);
    const HDC surface = GetDC(control);
    const auto font = reinterpret_cast<HGDIOBJ>(SendMessageW(control, WM_GETFONT, 0, 0));
    const HGDIOBJ before = SelectObject(surface, font);
    SIZE size = {};
    GetTextExtentPoint32W(surface, text.c_str(), static_cast<int>(text.size()), &size);
    SelectObject(surface, before);
    ReleaseDC(control, surface);
    RECT client = {};
    GetClientRect(control, &client);
    return size.cx <= client.right && size.cy <= client.bottom + 1;
}

RECT OpenSheet::Place(int id) const {
    RECT place = {};
    GetWindowRect(GetDlgItem(Page(), id), &place);
    MapWindowPoints(nullptr, Page(), reinterpret_cast<POINT*>(&place), 2);
    return place;
}

bool OpenSheet::IsChecked(int id) const {
    return IsDlgButtonChecked(Page(), id) == BST_CHECKED;
}

void OpenSheet::Click(int id) const {
    SendDlgItemMessageW(Page(), id, BM_CLICK, 0, 0);
}

void OpenSheet::SetText(int id, const std::wstring& text) const {
    SetDlgItemTextW(Page(), id, text.c_str());
}

bool PropertiesTest::ShowSheet(const std::wstring& path, int button, const Doing& doing) {
    run = {&doing, button, false};
    const UINT_PTR timer = SetTimer(nullptr, 0, USER_TIMER_MINIMUM, &WaitForSheet);
    FilePropertiesSheet sheet(&host_.Object(), L"");
    sheet.SetPath(path.c_str());
    sheet.Run();
    KillTimer(nullptr, timer);
    EXPECT_TRUE(run.done) << "no sheet was shown";
    return sheet.HasChanged();
}

void PropertiesTest::SetWritten(const std::wstring& path) {
    FILETIME time = {};
    SystemTimeToFileTime(&WrittenUtc, &time);
    const HANDLE file = CreateFileW(path.c_str(), FILE_WRITE_ATTRIBUTES, 0, nullptr, OPEN_EXISTING,
                                    FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    ASSERT_NE(file, INVALID_HANDLE_VALUE);
    EXPECT_TRUE(SetFileTime(file, nullptr, nullptr, &time));
    CloseHandle(file);
}

std::wstring PropertiesTest::ShortForms() {
    wchar_t date[64] = L"";
    wchar_t time[64] = L"";
    GetDateFormatW(LOCALE_SYSTEM_DEFAULT, DATE_SHORTDATE, &WrittenHere, nullptr, date, 64);
    GetTimeFormatW(LOCALE_SYSTEM_DEFAULT, 0, &WrittenHere, nullptr, time, 64);
    return std::wstring(date) + L" " + time;
}

std::string PropertiesTest::BytesOf(const std::wstring& path) {
    std::ifstream stream(path.c_str(), std::ios::binary);
    std::ostringstream bytes;
    bytes << stream.rdbuf();
    return bytes.str();
}

BOOL PropertiesTest::NineHoursLater(const FILETIME* utc, FILETIME* local) {
    ULARGE_INTEGER time;
    time.LowPart = utc->dwLowDateTime;
    time.HighPart = utc->dwHighDateTime;
    time.QuadPart += 9ULL * 60 * 60 * 10000000;
    local->dwLowDateTime = time.LowPart;
    local->dwHighDateTime = time.HighPart;
    return TRUE;
}
