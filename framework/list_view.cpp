#include "framework/list_view.h"

LRESULT ListView::Send(UINT message, int index, LPARAM argument) const {
    return SendMessageW(Handle(), message, static_cast<WPARAM>(index), argument);
}

// A control that is not subclassed gets its messages in the usual way.
LRESULT ListView::Call(UINT message, int index, LPARAM argument) const {
    const WNDPROC procedure = OwnProcedure();
    if (procedure == nullptr) return Send(message, index, argument);
    return CallWindowProcW(procedure, Handle(), message, static_cast<WPARAM>(index), argument);
}

void ListView::InsertColumn(int index, const LVCOLUMNW& column) const {
    Send(LVM_INSERTCOLUMNW, index, reinterpret_cast<LPARAM>(&column));
}

void ListView::SelectWholeRows() const {
    Send(LVM_SETEXTENDEDLISTVIEWSTYLE, 0, Send(LVM_GETEXTENDEDLISTVIEWSTYLE) | LVS_EX_FULLROWSELECT);
}

void ListView::SetImages(HIMAGELIST small, HIMAGELIST large) const {
    Send(LVM_SETIMAGELIST, LVSIL_SMALL, reinterpret_cast<LPARAM>(small));
    Send(LVM_SETIMAGELIST, LVSIL_NORMAL, reinterpret_cast<LPARAM>(large));
}

int ListView::InsertRow(int index, int image, LPARAM parameter) const {
    LVITEMW item{};
    item.mask = LVIF_IMAGE | LVIF_PARAM;
    item.iItem = index;
    item.iImage = image;
    item.lParam = parameter;
    return static_cast<int>(Call(LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item)));
}

LPARAM ListView::ParameterOf(int row) const {
    LVITEMW item{};
    item.mask = LVIF_PARAM;
    item.iItem = row;
    Send(LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    return item.lParam;
}

int ListView::RowWithParameter(LPARAM parameter) const {
    LVFINDINFOW wanted{};
    wanted.flags = LVFI_PARAM;
    wanted.lParam = parameter;
    return static_cast<int>(Send(LVM_FINDITEMW, -1, reinterpret_cast<LPARAM>(&wanted)));
}

void ListView::SetText(int row, int column, const wchar_t* text) const {
    LVITEMW item{};
    item.iSubItem = column;
    item.pszText = const_cast<wchar_t*>(text);
    Call(LVM_SETITEMTEXTW, row, reinterpret_cast<LPARAM>(&item));
}

void ListView::ReadText(int row, int column, wchar_t* text, int capacity) const {
    text[0] = L'\0';
    LVITEMW item{};
    item.iSubItem = column;
    item.pszText = text;
    item.cchTextMax = capacity;
    Send(LVM_GETITEMTEXTW, row, reinterpret_cast<LPARAM>(&item));
}

void ListView::SelectRow(int row) const {
    LVITEMW item{};
    item.stateMask = LVIS_SELECTED;
    item.state = LVIS_SELECTED;
    Send(LVM_SETITEMSTATE, row, reinterpret_cast<LPARAM>(&item));
}

RECT ListView::BoundsOf(int row) const {
    RECT bounds{LVIR_BOUNDS, 0, 0, 0};
    Send(LVM_GETITEMRECT, row, reinterpret_cast<LPARAM>(&bounds));
    return bounds;
}

void ListView::Sort(PFNLVCOMPARE compare, const void* parameter) const {
    // This message's wParam is not an index.
    SendMessageW(Handle(), LVM_SORTITEMS, reinterpret_cast<WPARAM>(parameter),
                 reinterpret_cast<LPARAM>(compare));
}
