#include "bench/ready_rows.h"

#include <commctrl.h>

#include <cwchar>

#include "bench/bench_tree.h"
#include "results/row_texts.h"
#include "results/type_names.h"

namespace {

constexpr DWORD ListStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP | LVS_REPORT | LVS_SINGLESEL |
                            LVS_AUTOARRANGE | LVS_EDITLABELS | LVS_SHAREIMAGELISTS;
constexpr int ColumnWidths[ResultColumnCount] = {100, 140, 40, 74, 104};

std::wstring SizeText(const WIN32_FIND_DATAW& entry) {
    if ((entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return L"";
    wchar_t text[RowTextCapacity];
    FormatResultSize(entry.nFileSizeLow, text);
    return text;
}

std::wstring TimeText(const WIN32_FIND_DATAW& entry) {
    FILETIME localFileTime = {};
    SYSTEMTIME local = {};
    FileTimeToLocalFileTime(&entry.ftLastWriteTime, &localFileTime);
    FileTimeToSystemTime(&localFileTime, &local);
    wchar_t text[2 * RowTextCapacity];
    FormatResultTime(local, text);
    return text;
}

int CALLBACK CompareNumbers(LPARAM first, LPARAM second, LPARAM parameter) {
    const auto& numbers = *reinterpret_cast<const std::vector<int>*>(parameter);
    const int one = numbers[static_cast<std::size_t>(first)];
    const int other = numbers[static_cast<std::size_t>(second)];
    return one < other ? -1 : one > other ? 1 : 0;
}

// The letters of the result list.
HFONT MakeFont() {
    LOGFONTW description = {};
    SystemParametersInfoW(SPI_GETICONTITLELOGFONT, sizeof description, &description, 0);
    std::wcscpy(description.lfFaceName, L"Tahoma");
    description.lfCharSet = DEFAULT_CHARSET;
    return CreateFontIndirectW(&description);
}

}  // namespace

void ForEachRowBelow(const std::wstring& folder, const std::function<void(const ReadyRow&)>& visit) {
    TypeNames types;
    Enumerate(folder, [&](const std::wstring& place, const WIN32_FIND_DATAW& entry) {
        const std::wstring path = place + L"\\" + entry.cFileName;
        visit({{entry.cFileName, place, SizeText(entry), types.Of(path.c_str(), entry.dwFileAttributes),
                TimeText(entry)}});
    });
}

std::vector<ReadyRow> RowsBelow(const std::wstring& folder) {
    std::vector<ReadyRow> rows;
    ForEachRowBelow(folder, [&](const ReadyRow& row) { rows.push_back(row); });
    return rows;
}

PlainList::PlainList(const RECT& place) : font_(MakeFont()) {
    const INITCOMMONCONTROLSEX classes = {sizeof classes, ICC_LISTVIEW_CLASSES};
    InitCommonControlsEx(&classes);
    window_ = CreateWindowExW(0, WC_STATICW, L"", WS_POPUP | WS_VISIBLE, 0, 0, GetSystemMetrics(SM_CXSCREEN),
                              GetSystemMetrics(SM_CYSCREEN), nullptr, nullptr, nullptr, nullptr);
    list_ = CreateWindowExW(0, WC_LISTVIEWW, L"", ListStyle, place.left, place.top, place.right - place.left,
                            place.bottom - place.top, window_, nullptr, nullptr, nullptr);
    SendMessageW(list_, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, LVS_EX_FULLROWSELECT);
    SendMessageW(list_, WM_SETFONT, reinterpret_cast<WPARAM>(font_), FALSE);
    procedure_ = reinterpret_cast<WNDPROC>(GetWindowLongPtrW(list_, GWLP_WNDPROC));
    InsertColumns();
    Raise();
}

PlainList::~PlainList() {
    DestroyWindow(window_);
    DeleteObject(font_);
}

LRESULT PlainList::Call(UINT message, WPARAM wParam, const void* argument) const {
    return CallWindowProcW(procedure_, list_, message, wParam, reinterpret_cast<LPARAM>(argument));
}

void PlainList::InsertColumns() const {
    for (int i = 0; i < ResultColumnCount; ++i) {
        LVCOLUMNW column = {};
        column.mask = LVCF_WIDTH | LVCF_TEXT;
        column.cx = ColumnWidths[i];
        column.pszText = const_cast<wchar_t*>(L"Column");
        Call(LVM_INSERTCOLUMNW, static_cast<WPARAM>(i), &column);
    }
}

void PlainList::BeginInserting() {
    Call(WM_SETREDRAW, FALSE, nullptr);
    rows_ = Rows();
}

void PlainList::EndInserting() {
    Call(WM_SETREDRAW, TRUE, nullptr);
    RedrawWindow(list_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
}

void PlainList::Append(const ReadyRow& row) {
    LVITEMW item = {};
    item.mask = LVIF_TEXT | LVIF_PARAM;
    item.iItem = rows_;
    item.lParam = rows_;
    item.pszText = const_cast<wchar_t*>(row.cells[0].c_str());
    Call(LVM_INSERTITEMW, 0, &item);
    for (int column = 1; column < ResultColumnCount; ++column) {
        item.iSubItem = column;
        item.pszText = const_cast<wchar_t*>(row.cells[column].c_str());
        Call(LVM_SETITEMTEXTW, static_cast<WPARAM>(rows_), &item);
    }
    ++rows_;
}

void PlainList::Insert(const std::vector<ReadyRow>& rows) {
    BeginInserting();
    for (const ReadyRow& row : rows)
        Append(row);
    EndInserting();
}

void PlainList::InsertBelow(const std::wstring& folder) {
    BeginInserting();
    ForEachRowBelow(folder, [this](const ReadyRow& row) { Append(row); });
    EndInserting();
}

void PlainList::DeleteAll() {
    Call(LVM_DELETEALLITEMS, 0, nullptr);
}

void PlainList::Raise() {
    SetForegroundWindow(window_);
    UpdateWindow(window_);
}

void PlainList::Sort(const std::vector<int>& numbers) {
    Call(LVM_SORTITEMS, reinterpret_cast<WPARAM>(&numbers), reinterpret_cast<const void*>(&CompareNumbers));
    UpdateWindow(list_);
}

int PlainList::Rows() const {
    return static_cast<int>(SendMessageW(list_, LVM_GETITEMCOUNT, 0, 0));
}
