#include "framework/list_view.h"

LRESULT ListView::Send(UINT message, int index, LPARAM argument) const {
    const auto first = static_cast<WPARAM>(index);
    return procedure_ != nullptr ? CallWindowProcW(procedure_, window_, message, first, argument)
                                 : SendMessageW(window_, message, first, argument);
}

void ListView::SelectWholeRows() const {
    Send(LVM_SETEXTENDEDLISTVIEWSTYLE, 0, Send(LVM_GETEXTENDEDLISTVIEWSTYLE) | LVS_EX_FULLROWSELECT);
}

void ListView::SetImages(HIMAGELIST small, HIMAGELIST large) const {
    Send(LVM_SETIMAGELIST, LVSIL_SMALL, small);
    Send(LVM_SETIMAGELIST, LVSIL_NORMAL, large);
}

int ListView::InsertRow(int index, int image, LPARAM parameter) const {
    LVITEMW item{};
    item.mask = LVIF_IMAGE | LVIF_PARAM;
    item.iItem = index;
    item.iImage = image;
    item.lParam = parameter;
    return static_cast<int>(Send(LVM_INSERTITEMW, 0, &item));
}

LPARAM ListView::Parameter(int row) const {
    LVITEMW item{};
    item.mask = LVIF_PARAM;
    item.iItem = row;
    Send(LVM_GETITEMW, 0, &item);
    return item.lParam;
}

int ListView::RowWithParameter(LPARAM parameter) const {
    LVFINDINFOW wanted{};
    wanted.flags = LVFI_PARAM;
    wanted.lParam = parameter;
    return static_cast<int>(Send(LVM_FINDITEMW, -1, &wanted));
}

void ListView::SetCell(int row, int column, const wchar_t* text) const {
    LVITEMW item{};
    item.iSubItem = column;
    item.pszText = const_cast<wchar_t*>(text);
    Send(LVM_SETITEMTEXTW, row, &item);
}

void ListView::ReadCell(int row, int column, std::span<wchar_t> text) const {
    text[0] = L'\0';
    LVITEMW item{};
    item.iSubItem = column;
    item.pszText = text.data();
    item.cchTextMax = static_cast<int>(text.size());
    Send(LVM_GETITEMTEXTW, row, &item);
}

void ListView::SelectRow(int row) const {
    LVITEMW item{};
    item.stateMask = LVIS_SELECTED;
    item.state = LVIS_SELECTED;
    Send(LVM_SETITEMSTATE, row, &item);
}

RECT ListView::BoundsOf(int row) const {
    RECT bounds{LVIR_BOUNDS, 0, 0, 0};
    Send(LVM_GETITEMRECT, row, &bounds);
    return bounds;
}

void ListView::Sort(PFNLVCOMPARE compare, const void* parameter) const {
    // The first word of this message is no index.
    SendMessageW(window_, LVM_SORTITEMS, reinterpret_cast<WPARAM>(parameter),
                 reinterpret_cast<LPARAM>(compare));
}
