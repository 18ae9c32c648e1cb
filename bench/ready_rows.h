#pragma once

// Rows as the result list shows them, with their texts ready made; and a plain list under a plain window that
// they are put into, in as few calls as it takes. It is as large as the program's list, has its style, its
// columns and its letters, and no icons.

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

#include "results/result_column.h"

struct ReadyRow {
    std::wstring cells[ResultColumnCount];
};

// One for each entry below the folder, in the order in which a bare enumeration comes to them.
[[nodiscard]] std::vector<ReadyRow> RowsBelow(const std::wstring& folder);

// The same one after the other, none of them kept.
void ForEachRowBelow(const std::wstring& folder, const std::function<void(const ReadyRow&)>& visit);

class PlainList {
  public:
    // The window covers the screen.
    explicit PlainList(const RECT& place);
    ~PlainList();
    PlainList(const PlainList&) = delete;
    PlainList& operator=(const PlainList&) = delete;

    // In front of whatever else is on the screen; what is covered is not drawn.
    void Raise();
    // Drawing is suspended for all of them, and what is seen is drawn once behind the last.
    void Insert(const std::vector<ReadyRow>& rows);
    // The same for the rows below the folder as they are found.
    void InsertBelow(const std::wstring& folder);
    void DeleteAll();
    // By a number for each row, which are to be found by the number that the row was inserted as.
    void Sort(const std::vector<int>& numbers);

    [[nodiscard]] int Rows() const;

  private:
    LRESULT Call(UINT message, WPARAM wParam, const void* argument) const;
    void InsertColumns() const;
    void Append(const ReadyRow& row);
    void BeginInserting();
    void EndInserting();

    HWND window_ = nullptr;
    HWND list_ = nullptr;
    HFONT font_ = nullptr;
    WNDPROC procedure_ = nullptr;
    int rows_ = 0;
};
