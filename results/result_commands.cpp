#include "results/result_commands.h"

#include <string>

#include "base/paths.h"
#include "base/program_context.h"
#include "fileops/confirmation_dialog.h"
#include "fileops/file_actions.h"
#include "fileops/file_facts.h"
#include "fileops/question_texts.h"
#include "framework/message_boxes.h"
#include "results/file_properties_sheet.h"
#include "results/shortcut_maker.h"
#include "results/shortcut_target.h"

namespace {

void Execute(HWND owner, const wchar_t* file, const wchar_t* arguments) {
    SHELLEXECUTEINFOW info{};
    info.cbSize = sizeof info;
    info.hwnd = owner;
    info.lpFile = file;
    info.lpParameters = arguments;
    info.nShow = SW_SHOWNORMAL;
    // The shell reports its own failures.
    ce::ShellExecuteExW(&info);
}

void OpenShortcut(const wchar_t* path) {
    wchar_t target[TargetCapacity];
    if (!ce::SHGetShortcutTarget(path, target, TargetCapacity)) return;
    const ShortcutTarget parts = SplitTarget(target);
    // QUIRK: folders-do-not-open
    if (HasAttribute(parts.program, FILE_ATTRIBUTE_DIRECTORY)) return;
    Execute(nullptr, parts.program, parts.arguments);
}

// A new name may be as long as the edit allows; the system tells of one that is too long.
std::wstring NewPath(const wchar_t* folder, const wchar_t* name) {
    wchar_t path[MAX_PATH];
    if (JoinPath(path, folder, name)) return path;
    return std::wstring(folder) + L'\\' + name;
}

}  // namespace

void ResultCommands::Open() {
    wchar_t path[MAX_PATH];
    if (list_.SelectedPath(path) < 0) return;
    if (IsShortcut(path)) {
        OpenShortcut(path);
    } else if (!HasAttribute(path, FILE_ATTRIBUTE_DIRECTORY)) {
        Execute(owner_.Handle(), path, nullptr);
    }
}

void ResultCommands::AddToStartMenu() {
    wchar_t path[MAX_PATH];
    if (list_.SelectedPath(path) < 0) return;
    // QUIRK: start-menu-folder-follows-the-program
    MakeShortcut(path, InLanguage(L"\\Windows\\Start Menu\\Programs", L"\\Windows\\ｽﾀｰﾄ ﾒﾆｭｰ\\ﾌﾟﾛｸﾞﾗﾑ"),
                 ShortcutForm::Plain);
}

void ResultCommands::Delete() {
    wchar_t path[MAX_PATH];
    const int row = list_.SelectedPath(path);
    if (row < 0) return;
    // QUIRK: delete-fails-on-folders. They are not treated apart.
    if (AskQuestion(&owner_, DeleteFileQuestion(path, Answers::YesNo)) != ConfirmResult::Yes) return;
    if (DeleteFileOrReport(owner_.Handle(), path)) list_.DeleteRow(row);
}

void ResultCommands::BeginRename() {
    const int row = list_.SelectedRow();
    if (row >= 0) list_.EditName(row);
}

void ResultCommands::EndRename(const NMLVDISPINFOW& edited) {
    // The control's buffer does not outlive the message boxes.
    std::wstring newName;
    if (!list_.EditedName(edited, newName)) return;
    const int row = list_.EditedRow(edited);
    if (row < 0) return;
    wchar_t folder[MAX_PATH];
    wchar_t oldName[MAX_PATH];
    wchar_t oldPath[MAX_PATH];
    list_.ReadCell(row, ResultColumn::Folder, folder);
    list_.ReadCell(row, ResultColumn::Name, oldName);
    if (!JoinPath(oldPath, folder, oldName)) return;
    // QUIRK: rename-may-move. The name goes to the system as it was typed.
    if (MoveFileOrReport(owner_.Handle(), oldPath, NewPath(folder, newName.c_str()).c_str())) {
        // QUIRK: rename-leaves-type-and-icon. Only the name follows the file.
        list_.SetCell(row, ResultColumn::Name, newName.c_str());
    } else {
        // QUIRK: failed-rename-shows-two-boxes. The move has told why.
        ShowError(owner_.Handle(), InLanguage(L"Can't rename the file", L"名前の変更に失敗しました"));
    }
}

void ResultCommands::ShowProperties() {
    wchar_t path[MAX_PATH];
    if (list_.SelectedPath(path) < 0) return;
    FilePropertiesSheet sheet(&owner_, L"");
    sheet.SetPath(path);
    sheet.Run();
}
