#include "results/shortcut_page.h"

#include <iterator>

#include "base/format_text.h"
#include "base/program_context.h"
#include "fileops/file_details.h"
#include "fileops/file_facts.h"
#include "framework/page_fit.h"
#include "resources/resource_ids.h"
#include "results/shortcut_target.h"

namespace {

constexpr DWORD BytesInKilobyte = 1024;

// Hidden when the target is a folder, which has no such values.
constexpr int FileOnlyItems[] = {LABEL_TARGET_SIZE, LABEL_TARGET_MODIFIED, STATIC_TARGET_SIZE,
                                 STATIC_TARGET_MODIFIED};

constexpr int LabelledTexts[] = {STATIC_TARGET_TYPE, STATIC_TARGET_SIZE, STATIC_TARGET_MODIFIED};

}  // namespace

ShortcutPage::ShortcutPage(WindowObject* parentObject)
    : FilePage(parentObject, InLanguage(L"Shortcut", L"ｼｮｰﾄｶｯﾄ"),
               InLanguage(L"EFilePropShortcutPage_E", L"EFilePropShortcutPage_J")) {
    OnApply(this, &ShortcutPage::OnApplyChanges);
}

void ShortcutPage::SetUpControls() {
    ShowFile();
    wchar_t target[MAX_PATH];
    if (!ce::SHGetShortcutTarget(Path(), target, MAX_PATH)) return;
    SetDlgItemTextW(Handle(), EDIT_TARGET, target);
    RemoveEnclosingQuotes(target);
    ShowTarget(target);
}

void ShortcutPage::ShowTarget(const wchar_t* target) {
    SHFILEINFOW info{};
    ce::SHGetFileInfo(target, 0, &info, sizeof info, SHGFI_TYPENAME);
    SetDlgItemTextW(Handle(), STATIC_TARGET_TYPE, info.szTypeName);
    WIN32_FIND_DATAW data{};
    if (!FindFile(target, data)) return;
    if ((data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        HideControls(FileOnlyItems);
        return;
    }
    wchar_t text[FileDetailsCapacity];
    // Unlike the General page, this one knows plain bytes.
    if (data.nFileSizeLow < BytesInKilobyte) {
        FormatText(text, std::size(text), L"%d bytes", data.nFileSizeLow);
    } else {
        FormatSizeDetails(data.nFileSizeLow, text, std::size(text));
    }
    SetDlgItemTextW(Handle(), STATIC_TARGET_SIZE, text);
    FormatTimeDetails(data.ftLastWriteTime, text, std::size(text));
    SetDlgItemTextW(Handle(), STATIC_TARGET_MODIFIED, text);
}

std::span<const int> ShortcutPage::Values() const {
    return LabelledTexts;
}

void ShortcutPage::LayOut() {
    FilePage::LayOut();
    WidenToRightEdge(Handle(), EDIT_TARGET);
}

// QUIRK: shortcut-is-always-rewritten. Edited or not, and the text as it was typed.
LRESULT ShortcutPage::OnApplyChanges(EventArguments&) {
    wchar_t target[MAX_PATH] = L"";
    GetDlgItemTextW(Handle(), EDIT_TARGET, target, MAX_PATH);
    ce::DeleteFileW(Path());
    ce::SHCreateShortcut(Path(), target);
    MarkChanged();
    return 0;
}
