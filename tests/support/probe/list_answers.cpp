#include <windows.h>

#include <commctrl.h>

#include "tests/support/probe/answers.h"
#include "tests/support/probe/program_windows.h"

namespace probe {
namespace {

constexpr int ColumnCount = 5;
constexpr int CellCapacity = 1024;

int RowCount(HWND list) {
    return static_cast<int>(SendMessageW(list, LVM_GETITEMCOUNT, 0, 0));
}

int NextRow(HWND list, UINT flags) {
    return static_cast<int>(
        SendMessageW(list, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), static_cast<LPARAM>(flags)));
}

void AnswerRow(AnswerWriter& writer, HWND list, int row) {
    wchar_t text[CellCapacity];
    for (int column = 0; column < ColumnCount; ++column) {
        text[0] = L'\0';
        LVITEMW cell = {};
        cell.iSubItem = column;
        cell.pszText = text;
        cell.cchTextMax = CellCapacity;
        SendMessageW(list, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&cell));
        writer.Text(text);
    }
    LVITEMW item = {};
    item.mask = LVIF_PARAM | LVIF_IMAGE | LVIF_STATE;
    item.iItem = row;
    item.stateMask = static_cast<UINT>(-1);
    SendMessageW(list, LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    RECT label = {};
    label.left = LVIR_LABEL;
    SendMessageW(list, LVM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&label));
    MapWindowPoints(list, HWND_DESKTOP, reinterpret_cast<POINT*>(&label), 2);
    writer.Number(item.lParam).Number(item.state).Number(item.iImage).Rectangle(label).End();
}

}  // namespace

void AnswerList(AnswerWriter& writer) {
    const HWND list = ListWindow();
    if (list == nullptr) return;
    RECT rectangle = {};
    GetWindowRect(list, &rectangle);
    MapWindowPoints(HWND_DESKTOP, MainWindow(), reinterpret_cast<POINT*>(&rectangle), 2);
    writer.Number(RowCount(list)).Number(NextRow(list, LVNI_SELECTED)).Number(NextRow(list, LVNI_FOCUSED));
    writer.Number(GetWindowLongW(list, GWL_STYLE));
    writer.Number(SendMessageW(list, LVM_GETEXTENDEDLISTVIEWSTYLE, 0, 0));
    writer.Rectangle(rectangle).End();
}

void AnswerRows(AnswerWriter& writer, int first, int count) {
    const HWND list = ListWindow();
    if (list == nullptr) return;
    const int total = RowCount(list);
    for (int row = first; row < total && row - first < count; ++row)
        AnswerRow(writer, list, row);
}

void AnswerColumns(AnswerWriter& writer) {
    const HWND list = ListWindow();
    if (list == nullptr) return;
    const auto header = reinterpret_cast<HWND>(SendMessageW(list, LVM_GETHEADER, 0, 0));
    const LRESULT count = SendMessageW(header, HDM_GETITEMCOUNT, 0, 0);
    for (int column = 0; column < count; ++column) {
        wchar_t text[256] = L"";
        LVCOLUMNW record = {};
        record.mask = LVCF_FMT | LVCF_WIDTH | LVCF_TEXT;
        record.pszText = text;
        record.cchTextMax = 256;
        SendMessageW(list, LVM_GETCOLUMNW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&record));
        RECT heading = {};
        SendMessageW(header, HDM_GETITEMRECT, static_cast<WPARAM>(column),
                     reinterpret_cast<LPARAM>(&heading));
        MapWindowPoints(header, HWND_DESKTOP, reinterpret_cast<POINT*>(&heading), 2);
        writer.Text(record.pszText).Number(record.cx).Number(record.fmt & LVCFMT_JUSTIFYMASK);
        writer.Rectangle(heading).End();
    }
}

void SelectRow(int row, bool select) {
    const HWND list = ListWindow();
    if (list == nullptr) return;
    LVITEMW item = {};
    item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    item.state = select ? LVIS_SELECTED | LVIS_FOCUSED : 0;
    SendMessageW(list, LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
}

}  // namespace probe
