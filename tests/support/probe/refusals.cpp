#include "tests/support/probe/refusals.h"

#include <commctrl.h>
#include <prsht.h>

#include <cstdlib>

#include "tests/support/probe/imported_calls.h"
#include "tests/support/probe/refused_calls.h"

namespace probe {
namespace {

Refusals* refusals = nullptr;
HHOOK creationHook = nullptr;
// Counts the creation; true when it is the one that fails.
bool Refuse(const wchar_t* name) {
    const bool refuse = InterlockedIncrement(&refusals->asked) == refusals->refused;
    if (refuse) lstrcpynW(refusals->name, name, RefusedNameCapacity);
    return refuse;
}

LRESULT CALLBACK WatchCreations(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HCBT_CREATEWND) {
        wchar_t name[RefusedNameCapacity] = L"";
        GetClassNameW(reinterpret_cast<HWND>(wParam), name, RefusedNameCapacity);
        if (RefusesWindow() || Refuse(name)) return 1;
    }
    return CallNextHookEx(creationHook, code, wParam, lParam);
}

// The program's first window comes by this call: every other one then meets the hook, whoever makes it.
HWND WINAPI MakeWindow(DWORD extendedStyle, const wchar_t* className, const wchar_t* title, DWORD style,
                       int x, int y, int width, int height, HWND parent, HMENU menu, HINSTANCE instance,
                       void* parameter) {
    if (creationHook == nullptr)
        creationHook = SetWindowsHookExW(WH_CBT, WatchCreations, nullptr, GetCurrentThreadId());
    return CreateWindowExW(extendedStyle, className, title, style, x, y, width, height, parent, menu,
                           instance, parameter);
}

ATOM WINAPI MakeClass(const WNDCLASSW* description) {
    return Refuse(L"class") ? 0 : RegisterClassW(description);
}

UINT_PTR WINAPI MakeTimer(HWND window, UINT_PTR id, UINT milliseconds, TIMERPROC procedure) {
    return Refuse(L"timer") ? 0 : SetTimer(window, id, milliseconds, procedure);
}

HHOOK WINAPI MakeHook(int kind, HOOKPROC procedure, HINSTANCE library, DWORD thread) {
    return Refuse(L"hook") ? nullptr : SetWindowsHookExW(kind, procedure, library, thread);
}

HMENU WINAPI MakeMenu(HINSTANCE instance, const wchar_t* name) {
    return Refuse(L"menu") ? nullptr : LoadMenuW(instance, name);
}

HACCEL WINAPI MakeAccelerators(HINSTANCE instance, const wchar_t* name) {
    return Refuse(L"accelerators") ? nullptr : LoadAcceleratorsW(instance, name);
}

HANDLE WINAPI MakeImage(HINSTANCE instance, const wchar_t* name, UINT kind, int width, int height,
                        UINT flags) {
    return Refuse(L"image") ? nullptr : LoadImageW(instance, name, kind, width, height, flags);
}

HFONT WINAPI MakeFont(const LOGFONTW* description) {
    return Refuse(L"font") ? nullptr : CreateFontIndirectW(description);
}

HIMAGELIST WINAPI MakeImageList(int width, int height, UINT flags, int count, int growth) {
    return Refuse(L"image list") ? nullptr : ImageList_Create(width, height, flags, count, growth);
}

HPROPSHEETPAGE WINAPI MakeSheetPage(const PROPSHEETPAGEW* description) {
    return Refuse(L"sheet page") ? nullptr : CreatePropertySheetPageW(description);
}

// Dialog templates and the description of a menu bar.
HRSRC WINAPI FindTemplate(HMODULE module, const wchar_t* name, const wchar_t* kind) {
    return Refuse(L"template") ? nullptr : FindResourceW(module, name, kind);
}

// The program's first call. What the compiler's own start-up asks for before it, it does not look at.
BOOL WINAPI BeginCounting(DWORD mode, DWORD* before) {
    BeginRefusingCalls();
    return SetThreadErrorMode(mode, before);
}

void* MakeMemory(std::size_t size) {
    if (!AreCallsRefused()) return std::malloc(size);
    const LONG number = InterlockedIncrement(&refusals->piecesAsked);
    const LONG divisor = refusals->divisor;
    return divisor != 0 && number % divisor == refusals->remainder ? nullptr : std::malloc(size);
}

template <typename Call>
void Replace(const char* name, Call replacement) {
    ReplaceImportedCall(name, reinterpret_cast<void*>(replacement));
}

void ReplaceCreations() {
    Replace("CreateWindowExW", &MakeWindow);
    Replace("RegisterClassW", &MakeClass);
    Replace("SetTimer", &MakeTimer);
    Replace("SetWindowsHookExW", &MakeHook);
    Replace("LoadMenuW", &MakeMenu);
    Replace("LoadAcceleratorsW", &MakeAccelerators);
    Replace("LoadImageW", &MakeImage);
    Replace("CreateFontIndirectW", &MakeFont);
    Replace("ImageList_Create", &MakeImageList);
    Replace("CreatePropertySheetPageW", &MakeSheetPage);
    Replace("FindResourceW", &FindTemplate);
    Replace("SetThreadErrorMode", &BeginCounting);
    Replace("malloc", &MakeMemory);
}

}  // namespace

void PrepareRefusals() {
    wchar_t name[MAX_PATH] = L"";
    if (GetEnvironmentVariableW(RefusalsVariable, name, MAX_PATH) == 0) return;
    const HANDLE section = OpenFileMappingW(FILE_MAP_ALL_ACCESS, FALSE, name);
    if (section == nullptr) return;
    refusals = static_cast<Refusals*>(MapViewOfFile(section, FILE_MAP_ALL_ACCESS, 0, 0, sizeof(Refusals)));
    CloseHandle(section);
    if (refusals == nullptr || refusals->ownerId == GetCurrentProcessId()) return;
    ReplaceCreations();
    PrepareRefusedCalls(*refusals);
}

}  // namespace probe
