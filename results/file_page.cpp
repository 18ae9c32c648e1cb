#include "results/file_page.h"

#include <prsht.h>

#include "framework/control.h"
#include "framework/layout.h"
#include "framework/page_fit.h"
#include "framework/property_set.h"
#include "platform/handles.h"
#include "resources/resource_ids.h"

FilePage::FilePage(WindowObject* parentObject, const wchar_t* title, const wchar_t* templateToUse)
    : PropertySheetPage(parentObject, title, TemplateProperties(templateToUse)) {
    OnEvent(event::DrawItem, STATIC_DISPLAY_NAME, this, &FilePage::OnDrawName);
}

SHFILEINFOW FilePage::ShowFile(UINT alsoAsked) {
    SHFILEINFOW info{};
    ce::SHGetFileInfo(path_, 0, &info, sizeof info, SHGFI_ICON | SHGFI_DISPLAYNAME | alsoAsked);
    StaticIcon(DialogItem(*this, STATIC_ICON)).Set(info.hIcon);
    SetDlgItemTextW(Handle(), STATIC_DISPLAY_NAME, info.szDisplayName);
    return info;
}

void FilePage::HideControls(std::span<const int> ids) {
    for (const int id : ids)
        ShowWindow(DialogItem(*this, id), SW_HIDE);
}

// The sheet has given the page its size only by then.
LRESULT FilePage::OnWmNotify(MessageRecord& record) {
    const auto* header = reinterpret_cast<const NMHDR*>(record.lParam);
    if (header != nullptr && header->code == static_cast<UINT>(PSN_SETACTIVE)) LayOut();
    return PropertySheetPage::OnWmNotify(record);
}

void FilePage::LayOut() {
    WidenToRightEdge(Handle(), STATIC_DISPLAY_NAME);
    GrowDown(Handle(), STATIC_DISPLAY_NAME);
    AlignBehindLabels(Handle(), Values());
    const int name[] = {STATIC_DISPLAY_NAME};
    tips_.Remove();
    tips_.Add(Handle(), name);
    tips_.Add(Handle(), Values());
}

// A static control draws an ellipsis only for a text of one line.
LRESULT FilePage::OnDrawName(EventArguments& arguments) {
    const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(arguments.argument);
    wchar_t name[MAX_PATH] = L"";
    const int length = GetWindowTextW(item.hwndItem, name, MAX_PATH);
    const SelectedObject font(item.hDC, FontOf(item.hwndItem));
    RECT area = item.rcItem;
    FillRect(item.hDC, &area, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
    DrawTextW(item.hDC, name, length, &area, DT_WORDBREAK | DT_EDITCONTROL | DT_END_ELLIPSIS | DT_NOPREFIX);
    return 0;
}

// A static control does not free its icon.
LRESULT FilePage::OnWmDestroy(MessageRecord& record) {
    const UniqueIcon icon(StaticIcon(DialogItem(*this, STATIC_ICON)).Set(nullptr));
    tips_.Remove();
    return PropertySheetPage::OnWmDestroy(record);
}
