#pragma once

// A window with children: it turns WM_COMMAND and WM_NOTIFY into events and keeps the focus over a
// deactivation.

#include "framework/window_object.h"

class ContainerWindow : public WindowObject {
  public:
    ContainerWindow(WindowObject* parent, const wchar_t* title, PropertySet& properties);
    ContainerWindow(WindowObject* parent, HWND handle, Ownership ownership);

    // NM_ codes that mean the same for every control; any other notification is the control's to translate.
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

    // The native code of a WM_COMMAND: the high word, signed as the system's error codes are.
    [[nodiscard]] static std::uint32_t CommandCodeOf(const MessageRecord& record);

    // The window's own translation of a WM_NOTIFY code, or that of the control's table.
    [[nodiscard]] EventCode TranslateNotification(std::uint32_t native, NativeCodeTable controlCodes) const;
    // Raises what the notification translates to. One that no table knows translates to the code of a click,
    // but nothing was clicked: it raises nothing.
    void RaiseNotification(NativeCodeTable controlCodes, EventSource source, MessageRecord& record);

    // Remembers the focus when the window is deactivated and gives it back on activation; a control that has
    // been hidden or disabled meanwhile is replaced by the next one that can take it.
    void KeepFocus(const MessageRecord& record);
    // For a window that is made anew: the handle remembered may belong to another control by now.
    void ForgetFocus() { rememberedFocus_ = nullptr; }

  private:
    // Whether it is this window or one inside it.
    [[nodiscard]] bool HoldsWindow(HWND window) const;
    // Whether neither the control nor what it lies in is hidden or disabled.
    [[nodiscard]] bool CanTakeFocus(HWND control) const;
    // The control or the next tab stop, of the window around it if there is none beside it; the window itself
    // at the end.
    [[nodiscard]] HWND NearestThatTakesFocus(HWND control) const;

    HWND rememberedFocus_ = nullptr;
};
