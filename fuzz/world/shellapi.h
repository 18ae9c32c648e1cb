#pragma once

// What the seam's shortcuts name of the shell.

#include <windows.h>

struct SHELLEXECUTEINFOW {
    const wchar_t* lpFile;
    HINSTANCE hInstApp;
    HANDLE hProcess;
};

struct SHFILEINFOW;
