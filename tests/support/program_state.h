#pragma once

// What the driver reads back from the running program.

#include <windows.h>

#include <string>
#include <vector>

struct RowState {
    std::wstring name, folder, size, type, modified;
    long long parameter = 0;
    UINT state = 0;
    int image = 0;
    RECT label = {};  // of the name, on the screen

    [[nodiscard]] bool Selected() const { return (state & 2u) != 0; }
};

struct ListState {
    int count = 0;
    int selected = -1;
    int focused = -1;
    DWORD style = 0;
    DWORD extendedStyle = 0;
    RECT rectangle = {};  // in the main window's client area
};

struct ColumnState {
    std::wstring heading;
    int width = 0;
    int format = 0;
    RECT rectangle = {};  // of the heading, on the screen
};

struct MenuItemState {
    int depth = 0;
    UINT id = 0;  // 0 for a popup and a separator
    UINT state = 0;
    UINT type = 0;
    std::wstring text;
    RECT rectangle = {};  // on the screen, while its menu is open; empty otherwise

    [[nodiscard]] bool Grayed() const { return (state & MFS_GRAYED) != 0; }
    [[nodiscard]] bool Checked() const { return (state & MFS_CHECKED) != 0; }
    [[nodiscard]] bool RadioMarked() const { return Checked() && (type & MFT_RADIOCHECK) != 0; }
    [[nodiscard]] bool Separator() const { return (type & MFT_SEPARATOR) != 0; }
};

struct ButtonState {
    int command = 0;
    int image = 0;
    int state = 0;
    int style = 0;
    std::wstring text;
    RECT rectangle = {};  // on the screen
};

struct TabState {
    std::wstring caption;
    bool current = false;
    RECT rectangle = {};  // on the screen
};

struct ControlState {
    bool exists = false;
    std::wstring className;
    std::wstring text;
    bool enabled = false;
    bool visible = false;
    int checked = 0;
    DWORD style = 0;
    int textLimit = 0;
    RECT rectangle = {};  // on the screen
};

struct ComboState {
    int selected = -1;
    std::vector<std::wstring> entries;
};

struct PickerState {
    std::wstring text;
    SYSTEMTIME time = {};
};

struct SpinState {
    int lower = 0;
    int upper = 0;
    int position = 0;
    int errorWord = 0;
};

// An item of the folder browser.
struct TreeItemState {
    int depth = 0;  // 0 for the root
    UINT state = 0;
    int image = 0;
    int selectedImage = 0;
    std::wstring text;

    [[nodiscard]] bool Selected() const { return (state & 2u) != 0; }
    [[nodiscard]] bool Expanded() const { return (state & 0x20u) != 0; }
};

struct DialogState {
    std::wstring caption;
    RECT rectangle = {};  // on the screen
    // Pairs of identifier and text, in the order of the dialog's children.
    std::vector<std::pair<int, std::wstring>> controls;

    // The text of the control, or an empty text when there is none.
    [[nodiscard]] std::wstring TextOf(int id) const {
        for (const auto& [controlId, text] : controls) {
            if (controlId == id) return text;
        }
        return {};
    }
};
