#pragma once

// The names by which the system knows this program.

constexpr const wchar_t* ProductName = L"QuorinSearch";
constexpr const wchar_t* MainWindowClass = L"QuorinSearch";
constexpr const wchar_t* MakerRegistryKey = L"Software\\QuorinSoft";
constexpr const wchar_t* ProductRegistryKey = L"Software\\QuorinSoft\\QuorinSearch";
