#pragma once

// Wrappers of the system's controls. A control is created as a child of its parent's window or taken from a
// dialog; its notifications are translated by the table of its class.

#include "framework/window_object.h"

// The dialog's control with the id, or null.
[[nodiscard]] HWND DialogItem(const WindowObject& dialog, int id);

class Control : public WindowObject {
  public:
    // Creates a child control of a class that the system has registered; child and visible by default.
    Control(WindowObject* parent, const wchar_t* className, PropertySet& properties);
    // Wraps a control that exists.
    Control(WindowObject* parent, HWND handle, const wchar_t* className,
            Ownership ownership = Ownership::FollowsParent);

    [[nodiscard]] NativeCodeTable NativeCodes() const override { return nativeCodes_; }

  private:
    NativeCodeTable nativeCodes_;
};

// A list view. The system's macros serve for its messages; here is only what has rules of the house.
class ListViewControl : public Control {
  public:
    static constexpr const wchar_t* ClassName = L"SysListView32";
    ListViewControl(WindowObject* parentObject, PropertySet& properties)
        : Control(parentObject, ClassName, properties) {}
};

class TabControl : public Control {
  public:
    static constexpr const wchar_t* ClassName = L"SysTabControl32";
    TabControl(WindowObject* parentObject, PropertySet& properties)
        : Control(parentObject, ClassName, properties) {}

    // Appends an item with this text; returns its index, or -1.
    int AppendItem(const wchar_t* text);
    // The index of the shown item, -1 when there is none.
    [[nodiscard]] int Selected() const;
    void Select(int index);
    // Where a page may stand, in client coordinates of the tab control.
    [[nodiscard]] RECT DisplayArea() const;
};
