#include "results/result_list.h"

#include <algorithm>
#include <cwchar>
#include <iterator>
#include <new>

#include "base/paths.h"
#include "base/program_context.h"
#include "framework/application.h"
#include "framework/layout.h"
#include "framework/property_set.h"
#include "results/file_type_table.h"
#include "results/result_sorting.h"
#include "results/row_texts.h"

namespace {

struct ColumnDescription {
    const wchar_t* english;
    const wchar_t* japanese;
    int width;  // in pixels, the same in both languages
    int format;
};

constexpr ColumnDescription Columns[ResultColumnCount] = {
    {L"Name", L"名前", 100, LVCFMT_LEFT},         {L"Folder", L"ﾌｫﾙﾀﾞ名", 140, LVCFMT_LEFT},
    {L"Size", L"ｻｲｽﾞ", 40, LVCFMT_RIGHT},         {L"Type", L"種類", 74, LVCFMT_LEFT},
    {L"Modified", L"更新日時", 104, LVCFMT_LEFT},
};

// A list of so many rows is emptied in less than half of the time in which an Abort has to be answered, and
// all at once it costs less than row by row.
constexpr int RowsClearedAtOnce = 9000;

// How long a longer one may be at it before messages are looked at, in milliseconds.
constexpr ULONGLONG ClearingStep = 25;

// The image lists are the cache's, not the control's to destroy.
PropertySet& WithListStyle(PropertySet& properties) {
    properties.Add(property::Style, LVS_REPORT | LVS_SINGLESEL | LVS_AUTOARRANGE | LVS_EDITLABELS |
                                        LVS_SHAREIMAGELISTS | WS_TABSTOP);
    return properties;
}

}  // namespace

ResultList::ResultList(WindowObject* parentObject, PropertySet& properties)
    : ListView(parentObject, WithListStyle(properties)) {
    SelectWholeRows();
    SetListFont();
    InsertColumns();
    const HWND header = Header();
    if (header != nullptr) heading_.reset(new (std::nothrow) ResultHeading(this, header));
    OnNotification(event::ColumnClick, this, &ResultList::OnColumnClick);
    OnNotification(event::DeletingAllItems, this, &ResultList::OnDeletingAll);
    OnNotification(event::BeginLabelEdit, this, &ResultList::OnBeginNameEdit);
    Subclass();
    OnMessage(WM_LBUTTONDOWN, this, &ResultList::OnLeftButtonDown);
    OnMessage(WM_KILLFOCUS, this, &ResultList::OnFocusLost);
    OnMessage(WM_KEYDOWN, this, &ResultList::OnKeyDown);
    OnMessage(WM_SYSKEYDOWN, this, &ResultList::OnSystemKey);
    OnMessage(WM_SYSCHAR, this, &ResultList::OnSystemKey);
}

void ResultList::SetListFont() {
    font_ = ce::ListFont();
    if (font_) SetFont(Handle(), font_.Get());
}

void ResultList::LoadIcons() {
    if (iconCache_ != nullptr) return;
    iconCache_.reset(new (std::nothrow) FileIconCache);
    if (iconCache_ == nullptr) return;
    SetImages(iconCache_->SmallImages(), iconCache_->LargeImages());
}

void ResultList::InsertColumns() {
    for (int i = 0; i < ResultColumnCount; ++i) {
        const ColumnDescription& description = Columns[i];
        LVCOLUMNW column{};
        column.mask = LVCF_FMT | LVCF_WIDTH | LVCF_TEXT;
        column.fmt = i == 0 ? LVCFMT_LEFT : description.format;
        column.cx = description.width;
        column.pszText = const_cast<wchar_t*>(InLanguage(description.english, description.japanese));
        InsertColumn(i, column);
    }
}

// If the list could not be created its handle is null, and to redraw null is to redraw the whole screen.
void ResultList::BeginFilling() {
    if (filling_ || Handle() == nullptr) return;
    filling_ = true;
    rowsPending_ = false;
    pace_.Begin(ce::GetTickCount64());
    SetDrawing(false);
}

void ResultList::EndFilling() {
    if (!filling_) return;
    filling_ = false;
    SetDrawing(true);
    InvalidateRect(Handle(), nullptr, TRUE);
}

void ResultList::Clear() {
    while (ClearSome()) {
    }
}

// Deleting all rows of a long list in one message takes seconds. Where that is so, the time grows with the
// square of the rows for each order of deleting them, and the last one first is as fast as any.
bool ResultList::ClearSome() {
    // While drawing is suspended the list would keep its place, and the first rows of the next search be out
    // of sight.
    BringIntoView(0);
    const int rows = RowCount();
    if (rows > RowsClearedAtOnce) {
        if (IsWindowEnabled(Handle())) EnableWindow(Handle(), FALSE);
        DeleteLastRows(rows - RowsClearedAtOnce);
        return true;
    }
    DeleteAllRows();
    if (Handle() != nullptr) EnableWindow(Handle(), TRUE);
    hasRows_ = false;
    rowsPending_ = true;
    pace_.Begin(ce::GetTickCount64());
    return false;
}

// So many at most, and as many as the time of one step allows.
void ResultList::DeleteLastRows(int rows) {
    const ULONGLONG start = ce::GetTickCount64();
    int last = RowCount();
    for (; rows > 0 && ce::GetTickCount64() - start < ClearingStep; --rows)
        DeleteRow(--last);
}

void ResultList::AddMatch(const wchar_t* fullPath, const WIN32_FIND_DATAW& entry) {
    LoadIcons();
    const int image = iconCache_ != nullptr
                          ? iconCache_->ImageOf(fullPath, entry.dwFileAttributes, FileIconCache::AllKinds)
                          : FileIconCache::DocumentImage;
    // QUIRK: new-rows-are-not-sorted. Each goes to the end, whatever the column of the last sort.
    const int end = RowCount();
    // QUIRK: row-numbers-keep-their-gaps. Never numbered anew.
    const int row = InsertRow(end, image, end);
    SetCell(row, ResultColumn::Type, typeNames_.Of(fullPath, entry.dwFileAttributes));
    SetCell(row, ResultColumn::Name, entry.cFileName);
    wchar_t folder[MAX_PATH];
    FolderOfResult(fullPath, folder);
    SetCell(row, ResultColumn::Folder, folder);
    // A folder's size cell stays empty.
    if ((entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
        wchar_t size[RowTextCapacity];
        FormatResultSize(entry.nFileSizeLow, size);
        SetCell(row, ResultColumn::Size, size);
    }
    FILETIME localFileTime{};
    SYSTEMTIME local{};
    ce::FileTimeToLocalFileTime(&entry.ftLastWriteTime, &localFileTime);
    FileTimeToSystemTime(&localFileTime, &local);
    wchar_t modified[2 * RowTextCapacity];
    FormatResultTime(local, modified);
    SetCell(row, ResultColumn::Modified, modified);
    hasRows_ = true;
    rowsPending_ = true;
}

void ResultList::Refresh() {
    if (filling_ && rowsPending_ && pace_.IsDue(ce::GetTickCount64(), hasRows_)) ShowPending();
}

void ResultList::ShowPending() {
    const ULONGLONG start = ce::GetTickCount64();
    SetDrawing(true);
    InvalidateRect(Handle(), nullptr, TRUE);
    UpdateWindow(Handle());
    SetDrawing(false);
    rowsPending_ = false;
    pace_.Drawn(start, ce::GetTickCount64(), hasRows_);
}

int ResultList::RowWithNumber(LPARAM number) const {
    return RowWithParameter(number);
}

void ResultList::SetCell(int row, ResultColumn column, const wchar_t* text) {
    SetText(row, static_cast<int>(column), text);
}

void ResultList::ReadCell(int row, ResultColumn column, wchar_t (&text)[MAX_PATH]) const {
    ReadText(row, static_cast<int>(column), text);
}

int ResultList::SelectedPath(wchar_t (&path)[MAX_PATH]) const {
    const int row = SelectedRow();
    if (row < 0) return -1;
    wchar_t name[MAX_PATH];
    wchar_t joined[MAX_PATH];
    // QUIRK: path-comes-from-the-cells
    ReadCell(row, ResultColumn::Folder, joined);
    ReadCell(row, ResultColumn::Name, name);
    // A path that did not fit was never listed, but a cell can be renamed.
    if (!JoinPath(joined, joined, name)) return -1;
    std::copy(std::begin(joined), std::end(joined), path);
    return row;
}

void ResultList::SetView(DWORD view) {
    ce::SetListView(Handle(), view);
}

// Nobody asks to be told of each row as well.
LRESULT ResultList::OnDeletingAll(EventArguments&) {
    return TRUE;
}

LRESULT ResultList::OnColumnClick(EventArguments& arguments) {
    if (sortColumn_ < 0) return 0;
    EndEditing();
    const WaitCursor waiting;
    const int clicked = reinterpret_cast<const NMLISTVIEW*>(arguments.argument)->iSubItem;
    sortAscending_ = clicked != sortColumn_ || !sortAscending_;
    sortColumn_ = clicked;
    SortRows(*this, sortColumn_, sortAscending_);
    return 0;
}
