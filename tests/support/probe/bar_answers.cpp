#include <windows.h>

#include <commctrl.h>

#include "tests/support/probe/answers.h"
#include "tests/support/probe/program_windows.h"

namespace probe {
namespace {

constexpr int TextCapacity = 256;

void AnswerMenuItems(AnswerWriter& writer, HMENU menu, int depth) {
    const int count = GetMenuItemCount(menu);
    for (int position = 0; position < count; ++position) {
        wchar_t text[TextCapacity] = L"";
        MENUITEMINFOW item = {};
        item.cbSize = sizeof(item);
        item.fMask = MIIM_ID | MIIM_STATE | MIIM_FTYPE | MIIM_SUBMENU | MIIM_STRING;
        item.dwTypeData = text;
        item.cch = TextCapacity;
        GetMenuItemInfoW(menu, static_cast<UINT>(position), TRUE, &item);
        const long long id = item.hSubMenu != nullptr ? 0 : static_cast<long long>(item.wID);
        writer.Number(depth).Number(id).Number(item.fState).Number(item.fType).Text(text);
        // Only an open menu has places for its items.
        RECT rectangle = {};
        GetMenuItemRect(nullptr, menu, static_cast<UINT>(position), &rectangle);
        writer.Rectangle(rectangle).End();
        if (item.hSubMenu != nullptr) AnswerMenuItems(writer, item.hSubMenu, depth + 1);
    }
}

void AnswerButton(AnswerWriter& writer, HWND toolBar, int index) {
    TBBUTTON button = {};
    SendMessageW(toolBar, TB_GETBUTTON, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&button));
    const auto command = static_cast<WPARAM>(button.idCommand);
    wchar_t text[TextCapacity] = L"";
    if (SendMessageW(toolBar, TB_GETBUTTONTEXTW, command, 0) < TextCapacity) {
        SendMessageW(toolBar, TB_GETBUTTONTEXTW, command, reinterpret_cast<LPARAM>(text));
    }
    RECT rectangle = {};
    SendMessageW(toolBar, TB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&rectangle));
    MapWindowPoints(toolBar, HWND_DESKTOP, reinterpret_cast<POINT*>(&rectangle), 2);
    writer.Number(button.idCommand).Number(button.iBitmap).Number(button.fsState).Number(button.fsStyle);
    writer.Text(text).Rectangle(rectangle).End();
}

}  // namespace

void AnswerMenu(AnswerWriter& writer) {
    const HMENU menu = BarMenu();
    if (menu != nullptr) AnswerMenuItems(writer, menu, 0);
}

void AnswerBar(AnswerWriter& writer) {
    const HWND toolBar = BarToolBar();
    if (toolBar == nullptr) return;
    const LRESULT count = SendMessageW(toolBar, TB_BUTTONCOUNT, 0, 0);
    for (int index = 0; index < count; ++index)
        AnswerButton(writer, toolBar, index);
}

void AnswerTabs(AnswerWriter& writer) {
    const HWND tab = TabWindow();
    if (tab == nullptr) return;
    const LRESULT count = SendMessageW(tab, TCM_GETITEMCOUNT, 0, 0);
    const LRESULT current = SendMessageW(tab, TCM_GETCURSEL, 0, 0);
    for (int index = 0; index < count; ++index) {
        wchar_t text[TextCapacity] = L"";
        TCITEMW item = {};
        item.mask = TCIF_TEXT;
        item.pszText = text;
        item.cchTextMax = TextCapacity;
        SendMessageW(tab, TCM_GETITEMW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&item));
        RECT rectangle = {};
        SendMessageW(tab, TCM_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&rectangle));
        MapWindowPoints(tab, HWND_DESKTOP, reinterpret_cast<POINT*>(&rectangle), 2);
        writer.Text(text).Number(index == current ? 1 : 0).Rectangle(rectangle).End();
    }
}

}  // namespace probe
