#include "tools/tour/hand_steps.h"

#include "resources/resource_ids.h"
#include "tests/program/program_dialogs.h"
#include "tests/support/user_input.h"

namespace {

POINT CentreOf(const RECT& place) {
    return {(place.left + place.right) / 2, (place.top + place.bottom) / 2};
}

bool IsShown(const wchar_t* className) {
    HWND window = nullptr;
    while ((window = FindWindowExW(nullptr, window, className, nullptr)) != nullptr) {
        if (IsWindowVisible(window)) return true;
    }
    return false;
}

bool IsAnythingDropped() {
    return IsShown(L"#32768") || IsShown(L"ComboLBox") || IsShown(L"SysMonthCal32");
}

bool HasControl(const ProgramDialog& dialog, int id) {
    return id == 0 || GetDlgItem(dialog.Window(), id) != nullptr;
}

}  // namespace

void OpenMenu(ProgramDriver& driver, int number) {
    constexpr int Commands[] = {COMMAND_MENU_FILE, COMMAND_MENU_VIEW, COMMAND_MENU_OPTION};
    driver.BringForward();
    for (const ButtonState& button : driver.Bar()) {
        if (button.command == Commands[number - 1]) ClickAt(CentreOf(button.rectangle));
    }
    WaitUntil("the menu to open", [] { return IsShown(L"#32768"); });
}

void ClickControl(ProgramDriver& driver, int page, int id) {
    driver.BringForward();
    ClickAt(CentreOf(driver.Control(page, id).rectangle));
    driver.WaitForQueue();
}

void OpenDropDown(ProgramDriver& driver, int page, int id) {
    driver.BringForward();
    const RECT place = driver.Control(page, id).rectangle;
    // Its button is at the right end.
    ClickAt({place.right - 8, (place.top + place.bottom) / 2});
    WaitUntil("the list or calendar to open", IsAnythingDropped);
}

void PressEscape() {
    PressKey(VK_ESCAPE);
    WaitUntil("the menu or list to close", [] { return !IsAnythingDropped(); });
}

void PressEnter() {
    PressKey(VK_RETURN);
}

void SelectRowOf(ProgramDriver& driver, const std::wstring& name) {
    const std::vector<std::wstring> names = driver.RowNames();
    for (std::size_t row = 0; row < names.size(); ++row) {
        if (names[row] == name) {
            driver.SelectRow(static_cast<int>(row));
            return;
        }
    }
    throw DriverError("there is no such row");
}

void TypeNewName(ProgramDriver& driver, const std::wstring& name) {
    driver.BringForward();
    driver.SendMenuCommand(COMMAND_RENAME);
    WaitUntil("the row's edit", [&] { return driver.FocusPath().compare(0, 5, L"edit:") == 0; });
    TypeText(name);
    driver.WaitForQueue();
}

void AwaitDialog(ProgramDriver& driver, int id) {
    WaitUntil("a dialog", [&] {
        const std::optional<ProgramDialog> dialog = OpenDialogOf(driver.Window());
        return dialog && HasControl(*dialog, id);
    });
}

void TurnSheet(ProgramDriver& driver, int page, int id) {
    const ProgramDialog sheet = WaitForDialog(driver.Window());
    if (!sheet.IsSheet() || page >= sheet.PageCount()) throw DriverError("the sheet has no such page");
    sheet.TurnTo(page);
    WaitUntil("the page", [&] { return IsWindowVisible(sheet.Control(id)) != FALSE; });
}
