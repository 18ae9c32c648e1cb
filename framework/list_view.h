#pragma once

// A list view, an operation a line: it sends the messages and keeps nothing but the window's handle.

#include <span>

#include "framework/control.h"

class ListView {
  public:
    // Messages are sent; where the control's own procedure is given they are handed to that, past the system.
    explicit ListView(HWND window, WNDPROC procedure = nullptr) : window_(window), procedure_(procedure) {}

    void InsertColumn(int index, const LVCOLUMNW& column) const { Send(LVM_INSERTCOLUMNW, index, &column); }
    [[nodiscard]] HWND Header() const { return reinterpret_cast<HWND>(Send(LVM_GETHEADER)); }
    // A click anywhere on a row selects it.
    void SelectWholeRows() const;
    // The images stay the caller's and outlive the list.
    void SetImages(HIMAGELIST small, HIMAGELIST large) const;
    // Drawing is suspended while many rows are inserted.
    void SetDrawing(bool on) const { Send(WM_SETREDRAW, on ? TRUE : FALSE); }

    [[nodiscard]] int Count() const { return static_cast<int>(Send(LVM_GETITEMCOUNT)); }
    // Returns the new row's index; -1 if there is none.
    int InsertRow(int index, int image, LPARAM parameter) const;
    void DeleteRow(int row) const { Send(LVM_DELETEITEM, row); }
    void DeleteAllRows() const { Send(LVM_DELETEALLITEMS); }
    [[nodiscard]] LPARAM Parameter(int row) const;
    // -1 if there is none.
    [[nodiscard]] int RowWithParameter(LPARAM parameter) const;

    void SetCell(int row, int column, const wchar_t* text) const;
    // What fits of it; empty if there is no such row.
    void ReadCell(int row, int column, std::span<wchar_t> text) const;

    // -1 if there is none.
    [[nodiscard]] int SelectedRow() const {
        return static_cast<int>(Send(LVM_GETNEXTITEM, -1, LVNI_SELECTED));
    }
    [[nodiscard]] int SelectedCount() const { return static_cast<int>(Send(LVM_GETSELECTEDCOUNT)); }
    void SelectRow(int row) const;

    void BringIntoView(int row) const { Send(LVM_ENSUREVISIBLE, row); }
    [[nodiscard]] RECT BoundsOf(int row) const;
    void ScrollSideways(int pixels) const { Send(LVM_SCROLL, pixels); }
    void Sort(PFNLVCOMPARE compare, const void* parameter) const;

    void EditName(int row) const { Send(LVM_EDITLABELW, row); }
    // The edit in which a name is being changed, or null.
    [[nodiscard]] HWND NameEdit() const { return reinterpret_cast<HWND>(Send(LVM_GETEDITCONTROL)); }
    void CancelEditing() const { Send(LVM_CANCELEDITLABEL); }

  private:
    LRESULT Send(UINT message, int index = 0, LPARAM argument = 0) const;
    LRESULT Send(UINT message, int index, const void* argument) const {
        return Send(message, index, reinterpret_cast<LPARAM>(argument));
    }

    HWND window_;
    WNDPROC procedure_;
};

// A list view that is an object.
class ListViewControl : public Control {
  public:
    static constexpr const wchar_t* ClassName = L"SysListView32";
    ListViewControl(WindowObject* parentObject, PropertySet& properties)
        : Control(parentObject, ClassName, properties) {}

    [[nodiscard]] ListView List() const { return ListView(Handle()); }
    // For many messages to a subclassed control: sending one costs as much as the list's work on a cell, and
    // calling the control's own procedure instead makes filling a tenth faster.
    [[nodiscard]] ListView DirectList() const { return ListView(Handle(), OwnProcedure()); }
};
