#include "results/general_page.h"

#include <cwchar>
#include <iterator>
#include <string>

#include "base/program_context.h"
#include "base/root_name.h"
#include "fileops/file_actions.h"
#include "fileops/file_details.h"
#include "fileops/file_facts.h"
#include "framework/control.h"
#include "resources/resource_ids.h"

namespace {

struct AttributeBox {
    int id;
    DWORD attribute;
};

constexpr AttributeBox AttributeBoxes[] = {
    {CHECK_READ_ONLY, FILE_ATTRIBUTE_READONLY},
    {CHECK_ARCHIVE, FILE_ATTRIBUTE_ARCHIVE},
    {CHECK_HIDDEN, FILE_ATTRIBUTE_HIDDEN},
    {CHECK_SYSTEM, FILE_ATTRIBUTE_SYSTEM},
};

constexpr DWORD ChangeableAttributes =
    FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;

// Hidden for a folder, which has no such values.
constexpr int FileOnlyItems[] = {LABEL_SIZE,    LABEL_MODIFIED, LABEL_ATTRIBUTES, CHECK_READ_ONLY,
                                 CHECK_ARCHIVE, CHECK_HIDDEN,   CHECK_SYSTEM};

constexpr int LabelledTexts[] = {STATIC_TYPE, STATIC_LOCATION, STATIC_SIZE, STATIC_MODIFIED};

}  // namespace

GeneralPage::GeneralPage(WindowObject* parentObject)
    : FilePage(parentObject, InLanguage(L"General", L"全般"),
               InLanguage(L"EFilePropGeneralPage_E", L"EFilePropGeneralPage_J")) {
    OnApply(this, &GeneralPage::OnApplyChanges);
}

void GeneralPage::SetUpControls() {
    SetDlgItemTextW(Handle(), STATIC_TYPE, ShowFile(SHGFI_TYPENAME).szTypeName);
    ShowLocation();
    if (HasAttribute(Path(), FILE_ATTRIBUTE_DIRECTORY)) {
        HideControls(FileOnlyItems);
        return;
    }
    WIN32_FIND_DATAW data{};
    if (!FindFile(Path(), data)) return;
    for (const AttributeBox& box : AttributeBoxes) {
        if ((data.dwFileAttributes & box.attribute) != 0) {
            CheckBox(DialogItem(*this, box.id)).Check(true);
        }
    }
    wchar_t text[FileDetailsCapacity];
    // QUIRK: general-page-knows-no-bytes
    FormatSizeDetails(data.nFileSizeLow, text, std::size(text));
    SetDlgItemTextW(Handle(), STATIC_SIZE, text);
    FormatTimeDetails(data.ftLastWriteTime, text, std::size(text));
    SetDlgItemTextW(Handle(), STATIC_MODIFIED, text);
}

void GeneralPage::ShowLocation() {
    const wchar_t* lastSeparator = std::wcsrchr(Path(), L'\\');
    std::wstring location(Path(), lastSeparator != nullptr ? lastSeparator : Path());
    if (location.empty()) {
        wchar_t root[MAX_PATH];
        RootDisplayName(root);
        location = root;
    }
    SetDlgItemTextW(Handle(), STATIC_LOCATION, location.c_str());
}

std::span<const int> GeneralPage::Values() const {
    return LabelledTexts;
}

LRESULT GeneralPage::OnApplyChanges(EventArguments&) {
    const DWORD attributes = ce::GetFileAttributesW(Path());
    // QUIRK: plain-folder-keeps-its-attributes. One with any other attribute is written like a file.
    if (attributes == INVALID_FILE_ATTRIBUTES || attributes == FILE_ATTRIBUTE_DIRECTORY) return 0;
    DWORD chosen = 0;
    for (const AttributeBox& box : AttributeBoxes) {
        if (CheckBox(DialogItem(*this, box.id)).IsChecked()) chosen |= box.attribute;
    }
    if (chosen == (attributes & ChangeableAttributes)) return 0;
    SetAttributesOrReport(Handle(), Path(), (attributes & ~ChangeableAttributes) | chosen);
    MarkChanged();
    return 0;
}
