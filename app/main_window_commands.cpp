// What the commands and the result list's notifications do.

#include "app/main_window.h"
#include "resources/resource_ids.h"
#include "search/run_search.h"

namespace {

// The commands that act on the selected row.
constexpr UINT SelectionCommands[] = {COMMAND_OPEN, COMMAND_ADD_TO_START_MENU, COMMAND_DELETE, COMMAND_RENAME,
                                      COMMAND_PROPERTIES};

// The state word of "Check Upper/Lower Cases", whose check mark is itself the setting; 0 without a menu.
UINT CaseOptionState(HMENU menu) {
    return ce::MenuItemState(menu, COMMAND_CHECK_CASE);
}

void ToggleCaseOption(HMENU menu) {
    const bool isChecked = (CaseOptionState(menu) & MFS_CHECKED) != 0;
    CheckMenuItem(menu, COMMAND_CHECK_CASE, static_cast<UINT>(isChecked ? MF_UNCHECKED : MF_CHECKED));
}

}  // namespace

LRESULT MainWindow::OnMenuCommand(EventArguments& arguments) {
    // A command that gets past the disabled menus during a search or a file operation is dropped, unless it
    // is Exit.
    const auto command = static_cast<UINT>(arguments.extra);
    // A name being edited is accepted first; the command acts on the rows as they are afterwards.
    if (!IsBusy()) results_->EndEditing();
    if (!IsBusy() || command == COMMAND_EXIT) RunCommand(command);
    UpdateWindow(Handle());
    return 0;
}

bool MainWindow::IsBusy() const {
    return abortDialog_->IsRunning() || fileOperation_->IsRunning();
}

void MainWindow::RunCommand(UINT command) {
    CompleteParts();
    switch (command) {
        case COMMAND_FIND:
            Find();
            break;
        case COMMAND_EXIT:
            PostClose();
            break;
        case COMMAND_LARGE_ICON:
            SetResultView(command, LVS_ICON);
            break;
        case COMMAND_SMALL_ICON:
            SetResultView(command, LVS_SMALLICON);
            break;
        case COMMAND_DETAILS:
            SetResultView(command, LVS_REPORT);
            break;
        case COMMAND_CHECK_CASE:
            ToggleCaseOption(Menu());
            break;
        case COMMAND_NEW_CONDITION:
            ResetConditions();
            break;
        case COMMAND_ABOUT:
            ShowAbout();
            break;
        default:
            RunResultCommand(command);
            break;
    }
}

// QUIRK: save-result-does-nothing. It is routed here like the others, and so is the command 40207.
void MainWindow::RunResultCommand(UINT command) {
    switch (command) {
        case COMMAND_OPEN:
            resultCommands_->Open();
            break;
        case COMMAND_ADD_TO_START_MENU:
            resultCommands_->AddToStartMenu();
            break;
        case COMMAND_DELETE:
            resultCommands_->Delete();
            break;
        case COMMAND_RENAME:
            resultCommands_->BeginRename();
            break;
        case COMMAND_PROPERTIES:
            resultCommands_->ShowProperties();
            break;
        default:
            return;
    }
    // The list sends no selection change when a selected row is deleted.
    if (results_->SelectedCount() == 0) EnableResultCommands(false);
}

// Enter or a double click in the list.
void MainWindow::Activate() {
    const bool altHeld = GetKeyState(VK_MENU) < 0;
    RunResultCommand(altHeld ? COMMAND_PROPERTIES : COMMAND_OPEN);
    UpdateWindow(Handle());
}

LRESULT MainWindow::OnResultDoubleClick(EventArguments&) {
    Activate();
    return 0;
}

LRESULT MainWindow::OnResultKeyDown(EventArguments& arguments) {
    if (reinterpret_cast<const NMLVKEYDOWN*>(arguments.argument)->wVKey != VK_RETURN) return 0;
    if (!BelongsToSearch(ce::GetTickCount64())) Activate();
    return 0;
}

// QUIRK: late-enter-opens-nothing. Someone who presses Enter several times to start a search does not mean to
// open the first file found: a press within the double-click time of the one before belongs to the search.
bool MainWindow::BelongsToSearch(ULONGLONG now) {
    if (now >= searchKeysEnd_) return false;
    searchKeysEnd_ = now + GetDoubleClickTime();
    return true;
}

// The control is told to discard the text: the cell shows the file's name, not what was typed.
LRESULT MainWindow::OnResultRenamed(EventArguments& arguments) {
    resultCommands_->EndRename(*reinterpret_cast<const NMLVDISPINFOW*>(arguments.argument));
    UpdateWindow(Handle());
    return FALSE;
}

void MainWindow::Find() {
    const bool startedByEnter = GetKeyState(VK_RETURN) < 0;
    abortDialog_->RunModal();
    searchKeysEnd_ = startedByEnter ? ce::GetTickCount64() + GetDoubleClickTime() : 0;
    UpdateWindow(Handle());
    results_->SelectRow(0);
    if (results_->SelectedCount() == 0) EnableResultCommands(false);
    FocusOn(*results_);
    if (closeAfterSearch_) PostClose();
}

LRESULT MainWindow::OnSearchRun(EventArguments&) {
    results_->BeginFilling();
    RunSearch(conditions_, AskedQuery(), *results_, *abortDialog_);
    results_->EndFilling();
    return 0;
}

SearchQuery MainWindow::AskedQuery() const {
    SearchQuery query;
    for (int i = 0; i < PageCount; ++i)
        Page(i)->FillQuery(query);
    // QUIRK: greyed-case-item-counts-as-checked. The state word is tested whole.
    query.ignoreCase = CaseOptionState(Menu()) == 0;
    return query;
}

void MainWindow::SetResultView(UINT command, DWORD view) {
    results_->SetView(view);
    CheckMenuRadioItem(Menu(), COMMAND_LARGE_ICON, COMMAND_DETAILS, command, MF_BYCOMMAND);
}

void MainWindow::ResetConditions() {
    for (int i = 0; i < PageCount; ++i)
        Page(i)->Reset();
}

void MainWindow::EnableResultCommands(bool enable) {
    for (const UINT command : SelectionCommands) {
        EnableMenuItem(Menu(), command, static_cast<UINT>(enable ? MF_ENABLED : MF_GRAYED));
    }
}

LRESULT MainWindow::OnResultChanged(EventArguments& arguments) {
    const auto& change = *reinterpret_cast<const NMLISTVIEW*>(arguments.argument);
    if ((change.uChanged & LVIF_STATE) == 0) return 0;
    const bool wasSelected = (change.uOldState & LVIS_SELECTED) != 0;
    const bool isSelected = (change.uNewState & LVIS_SELECTED) != 0;
    if (!wasSelected && isSelected) {
        EnableResultCommands(true);
    } else if (wasSelected && !isSelected && results_->SelectedCount() == 0) {
        EnableResultCommands(false);
    }
    return 0;
}
