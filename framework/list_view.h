#pragma once

// What a list view can be asked to do, one line each. All state is the control's own.

#include "framework/control.h"

class ListView : public Control {
  public:
    static constexpr const wchar_t* ClassName = L"SysListView32";
    ListView(WindowObject* parentObject, PropertySet& properties)
        : Control(parentObject, ClassName, properties) {}

    [[nodiscard]] HWND Header() const { return reinterpret_cast<HWND>(Send(LVM_GETHEADER)); }
    void InsertColumn(int index, const LVCOLUMNW& column) const;
    // A click anywhere on a row selects it.
    void SelectWholeRows() const;
    // The caller keeps the images, which must outlive the list.
    void SetImages(HIMAGELIST small, HIMAGELIST large) const;
    // Suspend drawing while inserting many rows.
    void SetDrawing(bool on) const { Send(WM_SETREDRAW, on ? TRUE : FALSE); }

    [[nodiscard]] int RowCount() const { return static_cast<int>(Call(LVM_GETITEMCOUNT)); }
    // Returns the new row's index; -1 if there is none.
    int InsertRow(int index, int image, LPARAM parameter) const;
    void DeleteRow(int row) const { Call(LVM_DELETEITEM, row); }
    void DeleteAllRows() const { Call(LVM_DELETEALLITEMS); }
    [[nodiscard]] LPARAM ParameterOf(int row) const;
    // -1 if there is none.
    [[nodiscard]] int RowWithParameter(LPARAM parameter) const;

    void SetText(int row, int column, const wchar_t* text) const;
    // Reads as much as fits; leaves an empty text if there is no such row.
    template <std::size_t Capacity>
    void ReadText(int row, int column, wchar_t (&text)[Capacity]) const {
        ReadText(row, column, text, static_cast<int>(Capacity));
    }

    // -1 if there is none.
    [[nodiscard]] int SelectedRow() const {
        return static_cast<int>(Send(LVM_GETNEXTITEM, -1, LVNI_SELECTED));
    }
    [[nodiscard]] int SelectedCount() const { return static_cast<int>(Send(LVM_GETSELECTEDCOUNT)); }
    void SelectRow(int row) const;

    void BringIntoView(int row) const { Call(LVM_ENSUREVISIBLE, row); }
    [[nodiscard]] RECT BoundsOf(int row) const;
    void ScrollSideways(int pixels) const { Send(LVM_SCROLL, pixels); }
    void Sort(PFNLVCOMPARE compare, const void* parameter) const;

    void BeginEditing(int row) const { Send(LVM_EDITLABELW, row); }
    void CancelEditing() const { Send(LVM_CANCELEDITLABEL); }
    // The edit control of the name being edited, or null.
    [[nodiscard]] HWND EditControl() const { return reinterpret_cast<HWND>(Send(LVM_GETEDITCONTROL)); }

  private:
    LRESULT Send(UINT message, int index = 0, LPARAM argument = 0) const;
    // Calls the control's own procedure directly. Sending a message costs as much as the control's work on a
    // cell, and a row takes seven messages: this makes filling a tenth faster.
    LRESULT Call(UINT message, int index = 0, LPARAM argument = 0) const;
    void ReadText(int row, int column, wchar_t* text, int capacity) const;
};
