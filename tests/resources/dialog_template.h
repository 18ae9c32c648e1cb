#pragma once

// A dialog template of the program, read apart into its fields.

#include <windows.h>

#include <string>
#include <vector>

struct TemplateControl {
    DWORD style = 0;
    DWORD extendedStyle = 0;
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    int id = 0;  // -1 for a control that is never asked for
    std::wstring className;
    std::wstring text;
};

struct DialogTemplate {
    DWORD style = 0;
    DWORD extendedStyle = 0;
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    std::wstring title;
    int fontSize = 0;  // in points, 0 without a font
    std::wstring fontName;
    std::vector<TemplateControl> controls;
};

// False when there is no such template or its bytes do not add up.
[[nodiscard]] bool ReadDialogTemplate(const wchar_t* name, DialogTemplate& dialog);

// The first control of the id, null when there is none.
const TemplateControl* FindControl(const DialogTemplate& dialog, int id);
