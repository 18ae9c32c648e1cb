// The program that is installed on the sample device: says which day it is.

#include <windows.h>

namespace {

constexpr int TextSize = 80;

bool IsJapanese() {
    return PRIMARYLANGID(GetSystemDefaultLangID()) == LANG_JAPANESE;
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, wchar_t*, int) {
    wchar_t today[TextSize] = L"";
    GetDateFormatW(LOCALE_SYSTEM_DEFAULT, DATE_LONGDATE, nullptr, nullptr, today, TextSize);
    MessageBoxW(nullptr, today, IsJapanese() ? L"今日" : L"Today", MB_OK | MB_ICONINFORMATION);
    return 0;
}
