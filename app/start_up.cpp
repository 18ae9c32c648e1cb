#include "app/start_up.h"

#include <cwchar>

#include "app/product.h"
#include "base/registry_key.h"
#include "platform/handles.h"
#include "platform/windows_ce.h"
#include "search/text_conversion.h"

namespace {

constexpr int PocketPcScreenWidth = 240;
constexpr int PocketPcScreenHeight = 320;

bool ShellHasInputPanel() {
    const UniqueLibrary shell(ce::LoadLibraryW(L"aygshell.dll"));
    return shell && ce::GetProcAddressW(shell.Get(), L"SHSipInfo") != nullptr;
}

// For a system that is not Japanese: with the library, text is searched for as Shift-JIS; without it, only
// the low bytes of the text are.
void InstallConversionLibrary(ProgramContext& context) {
    context.toMultiByte = &DefaultToMultiByte;
    context.toWide = &DefaultToWide;
    if (context.conversionLibrary == nullptr) context.conversionLibrary = ce::LoadLibraryW(L"TKCONV.DLL");
    if (context.conversionLibrary == nullptr) return;
    UseConversionLibrary(reinterpret_cast<UnicodeToSjisFunction>(
                             ce::GetProcAddressW(context.conversionLibrary, L"unicode2sjis")),
                         reinterpret_cast<SjisToUnicodeFunction>(
                             ce::GetProcAddressW(context.conversionLibrary, L"sjis2unicode")));
    context.toMultiByte = &LibraryToMultiByte;
    context.toWide = &LibraryToWide;
    context.codeConversionAvailable = true;
}

bool IsLanguageSwapped() {
    DWORD change = 0;
    return ReadRegistryDword(HKEY_CURRENT_USER, MakerRegistryKey, L"Change language", change) ==
               ERROR_SUCCESS &&
           change != 0;
}

bool IsMainWindow(HWND window) {
    constexpr int Capacity = 32;
    wchar_t name[Capacity];
    return ce::GetClassNameW(window, name, Capacity) > 0 && std::wcscmp(name, MainWindowClass) == 0;
}

// A closed copy may take a while to end, and its window must not be brought back.
bool IsGoing(HWND window) {
    return !IsWindowVisible(window) && !IsWindowEnabled(window);
}

// FindWindowW returns the frontmost window of the class; any others are behind it.
HWND FindRunningCopy() {
    HWND window = FindWindowW(MainWindowClass, nullptr);
    while (window != nullptr && (!IsMainWindow(window) || IsGoing(window)))
        window = GetWindow(window, GW_HWNDNEXT);
    return window;
}

}  // namespace

void ProbePlatform(ProgramContext& context) {
    context.screenWidth = ce::GetSystemMetrics(SM_CXSCREEN);
    context.screenHeight = ce::GetSystemMetrics(SM_CYSCREEN);
    // QUIRK: screen-makes-a-pocket-pc
    context.pocketPc = ShellHasInputPanel() || (context.screenWidth == PocketPcScreenWidth &&
                                                context.screenHeight == PocketPcScreenHeight);
}

void DecideLanguage(ProgramContext& context) {
    bool japanese = PRIMARYLANGID(ce::GetSystemDefaultLangID()) == LANG_JAPANESE;
    // QUIRK: japanese-system-folds-trail-bytes. With the system's own conversion it stays false.
    context.codeConversionAvailable = false;
    if (japanese) {
        context.toMultiByte = &SystemToMultiByte;
        context.toWide = &SystemToWide;
    } else {
        InstallConversionLibrary(context);
    }
    // QUIRK: conversion-stays-the-systems. The swap comes after the conversion has been chosen.
    if (IsLanguageSwapped()) japanese = !japanese;
    context.uiLanguage = japanese ? UiLanguage::Japanese : UiLanguage::English;
    context.menuLanguage = context.uiLanguage;
}

void ReleaseConversionLibrary(ProgramContext& context) {
    const UniqueLibrary library(context.conversionLibrary);
    if (!library) return;
    UseConversionLibrary(nullptr, nullptr);
    context.conversionLibrary = nullptr;
}

bool BringRunningCopyForward() {
    const HWND window = FindRunningCopy();
    if (window == nullptr) return false;
    ce::SetForegroundWindow(window);
    return true;
}
