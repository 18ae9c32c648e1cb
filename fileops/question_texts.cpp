#include "fileops/question_texts.h"

#include <iterator>

#include "base/format_text.h"
#include "base/paths.h"
#include "base/program_context.h"
#include "fileops/file_details.h"
#include "fileops/file_facts.h"
#include "framework/control.h"
#include "resources/resource_ids.h"

namespace {

constexpr UINT ShellIconFlags = SHGFI_ICON | SHGFI_DISPLAYNAME | SHGFI_TYPENAME;

constexpr TextPair DeleteReadOnly = {
    L"The file '%s' is a read-only file. Are you sure you want to delete it?",
    L"ﾌｧｲﾙ '%s' は読み取り専用です。削除してもよろしいですか?"};
constexpr TextPair DeleteProgram = {
    L"The file '%s' is a program.\n\nIf you remove it, you will no longer be able to run this program or "
    L"edit "
    L"some documents. Are you sure you want to delete it?",
    L"ﾌｧｲﾙ '%s' "
    L"はﾌﾟﾛｸﾞﾗﾑです。\n\n削除すると、このﾌﾟﾛｸﾞﾗﾑは実行できなくなり、また一部の文書は編集できなくなります。"
    L"\n削除してもよろしいですか?"};
// QUIRK: system-file-text-asks-nothing. In English.
constexpr TextPair DeleteSystem = {
    L"The file '%s' is a system file.\n\nIf you remove it, your computer or one of your programs may no "
    L"longer "
    L"work correctly.",
    L"ﾌｧｲﾙ '%s' はｼｽﾃﾑ ﾌｧｲﾙです。\n\n削除すると、ｼｽﾃﾑやｱﾌﾟﾘｹｰｼｮﾝが正しく作動しなくなる可能性があります。"
    L"\n削除してもよろしいですか?"};
constexpr TextPair DeleteOther = {L"Are you sure you want to delete '%s'?",
                                  L"'%s' を削除してもよろしいですか?"};

constexpr TextPair DeleteFolder = {L"Are you sure you want to remove the folder '%s' and all its contents?",
                                   L"ﾌｫﾙﾀﾞ'%s'とﾌｫﾙﾀﾞ内のすべてのﾌｧｲﾙを削除してもよろしいですか?"};

constexpr TextPair ReplaceSystem = {
    L"This folder already contains a system file called '%s'.",
    L"このﾌｫﾙﾀﾞには既にｼｽﾃﾑﾌｧｲﾙ %s が存在します。現在あるﾌｧｲﾙを、新しいﾌｧｲﾙで上書きしますか?"};
constexpr TextPair ReplaceReadOnly = {
    L"This folder already contains a read-only file called '%s'.",
    L"このﾌｫﾙﾀﾞには既に読み取り専用ﾌｧｲﾙ %s が存在します。現在あるﾌｧｲﾙを、新しいﾌｧｲﾙで上書きしますか?"};
constexpr TextPair ReplaceOther = {
    L"This folder already contains a file called '%s'.",
    L"このﾌｫﾙﾀﾞには既に %s というﾌｧｲﾙが存在します。現在あるﾌｧｲﾙを、新しいﾌｧｲﾙで上書きしますか?"};

// QUIRK: copies-ask-about-moving
constexpr TextPair ReplaceFolder = {
    L"This folder already contains a folder called '%s'.\n\nIf the files in the existing folder have the "
    L"same "
    L"name as files in the folder you are moving, do you want to replace the existing files?",
    L"このﾌｫﾙﾀﾞにはすでに'%s'"
    L"というﾌｫﾙﾀﾞが存在します。\n\n現在のﾌｫﾙﾀﾞのﾌｧｲﾙと新しいﾌｫﾙﾀﾞのﾌｧｲﾙが同じ名前の場合、"
    L"新しいﾌｧｲﾙで上書きしますか?"};

void SetText(HWND dialog, int id, const TextPair& text, const wchar_t* name) {
    wchar_t question[MAX_PATH + 400];
    FormatText(question, std::size(question), text.Text(), name);
    SetDlgItemTextW(dialog, id, question);
}

void SetTitle(HWND dialog, const wchar_t* english, const wchar_t* japanese) {
    SetWindowTextW(dialog, InLanguage(english, japanese));
}

void SetIcon(HWND dialog, int id, HICON icon) {
    StaticIcon(GetDlgItem(dialog, id)).Set(icon);
}

void SetProgramIcon(HWND dialog, int resource) {
    SetIcon(dialog, STATIC_ICON, LoadIconW(Context().instance, MAKEINTRESOURCEW(resource)));
}

void ShowFile(HWND dialog, int detailsId, int iconId, const wchar_t* path) {
    if (path == nullptr) return;
    wchar_t details[FileDetailsCapacity];
    FormatFileDetails(path, details);
    SetDlgItemTextW(dialog, detailsId, details);
    SHFILEINFOW info{};
    ce::SHGetFileInfo(path, 0, &info, sizeof info, ShellIconFlags);
    // Without one the template's own icon stays.
    if (info.hIcon != nullptr) SetIcon(dialog, iconId, info.hIcon);
}

// QUIRK: delete-question-looks-at-the-folder. It looks at the folder that holds the file, not at the file.
const TextPair& FileDeleteText(const wchar_t* folder) {
    if (HasAttribute(folder, FILE_ATTRIBUTE_READONLY)) return DeleteReadOnly;
    if (IsProgramFile(folder)) return DeleteProgram;
    if (HasAttribute(folder, FILE_ATTRIBUTE_SYSTEM)) return DeleteSystem;
    return DeleteOther;
}

const TextPair& FileReplaceText(const wchar_t* existing) {
    if (HasAttribute(existing, FILE_ATTRIBUTE_SYSTEM)) return ReplaceSystem;
    if (HasAttribute(existing, FILE_ATTRIBUTE_READONLY)) return ReplaceReadOnly;
    return ReplaceOther;
}

}  // namespace

void FillFolderDeleteText(HWND dialog, const wchar_t* folderPath) {
    SetTitle(dialog, L"Confirm Folder Delete", L"ﾌｫﾙﾀﾞの削除の確認");
    SetProgramIcon(dialog, ICON_DELETE);
    SetText(dialog, STATIC_QUESTION, DeleteFolder, SplitPath(folderPath).name);
}

void FillFileDeleteText(HWND dialog, const wchar_t* filePath) {
    SetTitle(dialog, L"Confirm File Delete", L"ﾌｧｲﾙの削除の確認");
    SetProgramIcon(dialog, ICON_DELETE);
    const PathParts parts = SplitPath(filePath);
    SetText(dialog, STATIC_QUESTION, FileDeleteText(parts.folder), parts.name);
}

void FillFileReplaceText(HWND dialog, const ReplacePaths* paths) {
    if (paths->existingFile != nullptr) {
        SetText(dialog, STATIC_QUESTION, FileReplaceText(paths->existingFile),
                SplitPath(paths->existingFile).name);
    }
    ShowFile(dialog, STATIC_EXISTING_DETAILS, STATIC_EXISTING_ICON, paths->existingFile);
    ShowFile(dialog, STATIC_NEW_DETAILS, STATIC_NEW_ICON, paths->newFile);
}

void FillFolderReplaceText(HWND dialog, const wchar_t* folderPath) {
    SetTitle(dialog, L"Confirm Folder Replace", L"ﾌｫﾙﾀﾞの置換の確認");
    SetProgramIcon(dialog, ICON_REPLACE);
    SetText(dialog, STATIC_QUESTION, ReplaceFolder, folderPath);
    // QUIRK: yes-to-all-is-renamed. The template's own Japanese label means to delete all.
    SetDlgItemTextW(dialog, BUTTON_YES_TO_ALL, InLanguage(L"Yes to &All", L"すべて上書き(&A)"));
}

Question DeleteFileQuestion(const wchar_t* path, Answers answers) {
    return {answers == Answers::YesNo ? YesNoTemplate() : YesAllNoCancelTemplate(), &FillFileDeleteText,
            path};
}

Question DeleteFolderQuestion(const wchar_t* path) {
    return {YesAllNoCancelTemplate(), &FillFolderDeleteText, path};
}

Question ReplaceFileQuestion(const ReplacePaths& paths, Answers answers) {
    return {answers == Answers::YesNo ? FileReplaceTemplate() : MultipleFileReplaceTemplate(),
            &FillFileReplaceText, &paths};
}

Question ReplaceFolderQuestion(const wchar_t* path) {
    return {YesAllNoCancelTemplate(), &FillFolderReplaceText, path};
}
