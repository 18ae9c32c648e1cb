#include "results/file_page.h"

#include <algorithm>

#include "framework/control.h"
#include "framework/dialog_template.h"
#include "resources/resource_ids.h"

namespace {

// In pixels: between a label and what stands behind it, and behind the last letter.
constexpr LONG Gap = 3;
constexpr LONG Margin = 6;

LONG TextWidth(HWND control) {
    wchar_t text[128] = L"";
    const int length = GetWindowTextW(control, text, 128);
    HDC surface = GetDC(control);
    const auto font = reinterpret_cast<HGDIOBJ>(SendMessageW(control, WM_GETFONT, 0, 0));
    HGDIOBJ before = font != nullptr ? SelectObject(surface, font) : nullptr;
    SIZE size{};
    GetTextExtentPoint32W(surface, text, length, &size);
    if (before != nullptr) SelectObject(surface, before);
    ReleaseDC(control, surface);
    return size.cx;
}

RECT PlaceIn(HWND page, HWND control) {
    RECT place{};
    GetWindowRect(control, &place);
    MapWindowPoints(nullptr, page, reinterpret_cast<POINT*>(&place), 2);
    return place;
}

void SetPlace(HWND control, const RECT& place) {
    MoveWindow(control, place.left, place.top, place.right - place.left, place.bottom - place.top, TRUE);
}

}  // namespace

FilePage::FilePage(WindowObject* parentObject, const wchar_t* title, const wchar_t* templateToUse)
    : PropertySheetPage(parentObject, title, TemplateProperties(templateToUse)) {}

SHFILEINFOW FilePage::ShowFile(UINT alsoAsked) {
    SHFILEINFOW info{};
    ce::SHGetFileInfo(path_, 0, &info, sizeof info, SHGFI_ICON | SHGFI_DISPLAYNAME | alsoAsked);
    SendDlgItemMessageW(Handle(), STATIC_ICON, STM_SETIMAGE, IMAGE_ICON,
                        reinterpret_cast<LPARAM>(info.hIcon));
    SetDlgItemTextW(Handle(), STATIC_DISPLAY_NAME, info.szDisplayName);
    return info;
}

void FilePage::HideControls(std::span<const int> ids) {
    for (const int id : ids)
        ShowWindow(DialogItem(*this, id), SW_HIDE);
}

void FilePage::ShowSize(int labelId, int sizeId, const wchar_t* text) {
    const HWND label = DialogItem(*this, labelId);
    const HWND size = DialogItem(*this, sizeId);
    SetWindowTextW(size, text);
    RECT sizePlace = PlaceIn(Handle(), size);
    const LONG wanted = sizePlace.right - TextWidth(size) - Margin;
    if (wanted >= sizePlace.left) return;
    RECT labelPlace = PlaceIn(Handle(), label);
    labelPlace.right = labelPlace.left + TextWidth(label);
    sizePlace.left = std::max(wanted, labelPlace.right + Gap);
    SetPlace(label, labelPlace);
    SetPlace(size, sizePlace);
}

// A static does not free its icon.
LRESULT FilePage::OnWmDestroy(MessageRecord& record) {
    const LRESULT icon = SendDlgItemMessageW(Handle(), STATIC_ICON, STM_SETIMAGE, IMAGE_ICON, 0);
    if (icon != 0) DestroyIcon(reinterpret_cast<HICON>(icon));
    return PropertySheetPage::OnWmDestroy(record);
}
