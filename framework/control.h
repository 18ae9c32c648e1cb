#pragma once

// Wrappers of the system's controls. A control is created as a child of its parent's window or taken from a
// dialog; its notifications are translated by the table of its class.

#include "framework/window_object.h"

// The dialog's control with this id, or null.
[[nodiscard]] HWND DialogItem(const WindowObject& dialog, int id);

class Control : public WindowObject {
  public:
    // Creates a child control of a class that the system has registered; child and visible by default.
    Control(WindowObject* parent, const wchar_t* className, PropertySet& properties);
    // Wraps an existing control.
    Control(WindowObject* parent, HWND handle, const wchar_t* className,
            Ownership ownership = Ownership::FollowsParent);

    [[nodiscard]] NativeCodeTable NativeCodes() const override { return nativeCodes_; }

  private:
    NativeCodeTable nativeCodes_;
};

// What the controls of a dialog that have no object of their own can be asked to do, one line each. These
// hold the window's handle and no state.
class CheckBox {
  public:
    explicit CheckBox(HWND window) : window_(window) {}

    [[nodiscard]] bool IsChecked() const { return SendMessageW(window_, BM_GETCHECK, 0, 0) != 0; }
    void Check(bool checked) const {
        SendMessageW(window_, BM_SETCHECK, checked ? BST_CHECKED : BST_UNCHECKED, 0);
    }

  private:
    HWND window_;
};

class Spin {
  public:
    explicit Spin(HWND window) : window_(window) {}

    // The upper bound in the low word, the lower one in the high word.
    void SetRange(LPARAM range) const { SendMessageW(window_, UDM_SETRANGE, 0, range); }
    void SetPosition(int position) const { SendMessageW(window_, UDM_SETPOS, 0, position); }
    [[nodiscard]] DWORD Position() const { return ce::SpinPosition(window_); }

  private:
    HWND window_;
};

class DatePicker {
  public:
    explicit DatePicker(HWND window) : window_(window) {}

    void SetFormat(const wchar_t* format) const { ce::SetPickerFormat(window_, format); }
    void SetDate(const SYSTEMTIME& date) const {
        SendMessageW(window_, DTM_SETSYSTEMTIME, GDT_VALID, reinterpret_cast<LPARAM>(&date));
    }
    [[nodiscard]] SYSTEMTIME Date() const;

  private:
    HWND window_;
};

// A static control that shows an icon. It does not own the icon.
class StaticIcon {
  public:
    explicit StaticIcon(HWND window) : window_(window) {}

    // Returns the previous icon.
    HICON Set(HICON icon) const {
        return reinterpret_cast<HICON>(
            SendMessageW(window_, STM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(icon)));
    }
    [[nodiscard]] HICON Get() const {
        return reinterpret_cast<HICON>(SendMessageW(window_, STM_GETIMAGE, IMAGE_ICON, 0));
    }

  private:
    HWND window_;
};

class TabControl : public Control {
  public:
    static constexpr const wchar_t* ClassName = L"SysTabControl32";
    TabControl(WindowObject* parentObject, PropertySet& properties)
        : Control(parentObject, ClassName, properties) {}

    // Appends an item with this text; returns its index, or -1.
    int AppendItem(const wchar_t* text);
    // The index of the selected item; -1 if there is none.
    [[nodiscard]] int Selected() const;
    void Select(int index);
    // The area for a page, in client coordinates of the tab control.
    [[nodiscard]] RECT DisplayArea() const;
};
