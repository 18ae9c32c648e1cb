#pragma once

// A window with children: it turns WM_COMMAND and WM_NOTIFY into events, and gives the focus back to the same
// child when it is activated again.

#include "framework/window_object.h"

class ContainerWindow : public WindowObject {
  public:
    ContainerWindow(WindowObject* parent, const wchar_t* title, PropertySet& properties);
    ContainerWindow(WindowObject* parent, HWND handle, Ownership ownership);

    // The NM_ codes, which mean the same for every control; the control's own table translates the others.
    [[nodiscard]] NativeCodeTable NativeCodes() const override;

  protected:
    LRESULT DispatchToClass(MessageRecord& record) override;

    // The object of the window, or null.
    [[nodiscard]] static WindowObject* ObjectOf(HWND window);

    virtual LRESULT OnWmCommand(MessageRecord& record);
    virtual LRESULT OnWmNotify(MessageRecord& record);
    virtual LRESULT OnWmDrawItem(MessageRecord& record);
    virtual LRESULT OnWmActivate(MessageRecord& record);
    virtual LRESULT OnWmDestroy(MessageRecord& record);

    // The native code of a WM_COMMAND: the high word, sign-extended as the system's error codes are.
    [[nodiscard]] static std::uint32_t CommandCodeOf(const MessageRecord& record);

    // Translates a WM_NOTIFY code by the window's own table, else by the control's.
    [[nodiscard]] EventCode TranslateNotification(std::uint32_t native, NativeCodeTable controlCodes) const;
    // Raises the event that the notification translates to. A code that no table has would translate to a
    // click, but nothing was clicked, so it raises nothing.
    void RaiseNotification(NativeCodeTable controlCodes, EventSource source, MessageRecord& record);

    // Remembers the focus when the window is deactivated and restores it on activation. If the control has
    // been hidden or disabled meanwhile, the next one that can take the focus gets it.
    void KeepFocus(const MessageRecord& record);
    // Call when the window has been created again: the remembered handle may belong to another control by
    // now.
    void ForgetFocus() { rememberedFocus_ = nullptr; }

  private:
    // Whether it is this window or one inside it.
    [[nodiscard]] bool HoldsWindow(HWND window) const;
    // Whether the control and everything that contains it is visible and enabled.
    [[nodiscard]] bool CanTakeFocus(HWND control) const;
    // The control, else the next tab stop beside it, else one beside the window that contains it, and so on
    // up to this window.
    [[nodiscard]] HWND NearestThatTakesFocus(HWND control) const;

    HWND rememberedFocus_ = nullptr;
};
