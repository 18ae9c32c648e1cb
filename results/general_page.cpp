#include "results/general_page.h"

#include <iterator>

#include "app/language.h"
#include "fileops/file_actions.h"
#include "fileops/file_facts.h"
#include "framework/control.h"
#include "framework/dialog_template.h"
#include "platform/root_name.h"
#include "resources/resource_ids.h"
#include "results/page_items.h"

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

// What a folder has no value for.
constexpr int FileOnlyItems[] = {LABEL_SIZE,    LABEL_MODIFIED, LABEL_ATTRIBUTES, CHECK_READ_ONLY,
                                 CHECK_ARCHIVE, CHECK_HIDDEN,   CHECK_SYSTEM};

}  // namespace

GeneralPage::GeneralPage(WindowObject* parentObject)
    : PropertySheetPage(parentObject, InLanguage(L"General", L"全般"),
                        TemplateProperties(InLanguage(L"EFilePropGeneralPage_E", L"EFilePropGeneralPage_J"))) {
    OnApply(this, &GeneralPage::OnApplyChanges);
}

void GeneralPage::SetUpControls() {
    SHFILEINFOW info{};
    ce::SHGetFileInfo(path, 0, &info, sizeof info, SHGFI_ICON | SHGFI_DISPLAYNAME | SHGFI_TYPENAME);
    ShowIcon(Handle(), info.hIcon);
    SetDlgItemTextW(Handle(), STATIC_DISPLAY_NAME, info.szDisplayName);
    SetDlgItemTextW(Handle(), STATIC_TYPE, info.szTypeName);
    ShowLocation();
    if (HasAttribute(path, FILE_ATTRIBUTE_DIRECTORY)) {
        HideFileControls();
        return;
    }
    WIN32_FIND_DATAW data{};
    if (!FindFile(path, data)) return;
    for (const AttributeBox& box : AttributeBoxes) {
        if ((data.dwFileAttributes & box.attribute) != 0) {
            SendDlgItemMessageW(Handle(), box.id, BM_SETCHECK, BST_CHECKED, 0);
        }
    }
    wchar_t text[FileDetailsCapacity];
    FormatSizeDetails(data.nFileSizeLow, text, std::size(text));
    SetDlgItemTextW(Handle(), STATIC_SIZE, text);
    FormatTimeDetails(data.ftLastWriteTime, text, std::size(text));
    SetDlgItemTextW(Handle(), STATIC_MODIFIED, text);
}

void GeneralPage::ShowLocation() {
    std::wstring location(path, std::wstring_view(path).rfind(L'\\') == std::wstring_view::npos
                                    ? 0
                                    : std::wstring_view(path).rfind(L'\\'));
    if (location.empty()) {
        wchar_t root[MAX_PATH];
        RootDisplayName(root);
        location = root;
    }
    SetDlgItemTextW(Handle(), STATIC_LOCATION, location.c_str());
}

void GeneralPage::HideFileControls() {
    for (const int id : FileOnlyItems)
        ShowWindow(DialogItem(*this, id), SW_HIDE);
}

LRESULT GeneralPage::OnWmDestroy(MessageRecord& record) {
    FreeIcon(Handle());
    return PropertySheetPage::OnWmDestroy(record);
}

LRESULT GeneralPage::OnApplyChanges(EventArguments&) {
    const DWORD attributes = ce::GetFileAttributesW(path);
    // A folder with any other attribute is written like a file.
    if (attributes == INVALID_FILE_ATTRIBUTES || attributes == FILE_ATTRIBUTE_DIRECTORY) return 0;
    DWORD chosen = 0;
    for (const AttributeBox& box : AttributeBoxes) {
        if (SendDlgItemMessageW(Handle(), box.id, BM_GETCHECK, 0, 0) != 0) chosen |= box.attribute;
    }
    if (chosen == (attributes & ChangeableAttributes)) return 0;
    SetAttributesOrReport(Handle(), path, (attributes & ~ChangeableAttributes) | chosen);
    return 0;
}
