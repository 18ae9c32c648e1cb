#pragma once

// Dialogs without windows, in the place of framework/dialog.h.

#include "framework/dispatch_tables.h"
#include "framework/property_set.h"
#include "platform/windows_ce.h"

class WindowObject {
  public:
    explicit WindowObject(WindowObject* parent) : parent_(parent) {}
    virtual ~WindowObject() = default;
    WindowObject(const WindowObject&) = delete;
    WindowObject& operator=(const WindowObject&) = delete;

    [[nodiscard]] HWND Handle() const { return reinterpret_cast<HWND>(const_cast<WindowObject*>(this)); }
    [[nodiscard]] WindowObject* Parent() const { return parent_; }
    [[nodiscard]] HWND ParentHandle() const { return nullptr; }

    template <class Target>
    void OnCommand(EventSource, Target*, LRESULT (Target::*)(EventArguments&)) {}
    template <class Target>
    void OnMessage(UINT, Target*, LRESULT (Target::*)(MessageRecord&)) {}
    void Subclass() {}
    LRESULT DefaultProcessing(MessageRecord&) { return 0; }

  private:
    WindowObject* parent_;
};

class Dialog : public WindowObject {
  public:
    static constexpr INT_PTR ResultOk = 1;

    Dialog(WindowObject* parent, const PropertySet&) : WindowObject(parent) {}

    virtual INT_PTR RunModal() = 0;
    virtual void End(INT_PTR result) { endedWith_ = result; }

  protected:
    virtual LRESULT OnInitDialog(MessageRecord&) { return 1; }
    virtual LRESULT OnWmActivate(MessageRecord&) { return 0; }
    [[nodiscard]] INT_PTR EndedWith() const { return endedWith_; }

  private:
    INT_PTR endedWith_ = -1;
};

namespace ce {

inline HWND InputWindowOf(HWND window) {
    return window;
}
inline bool PassActivationOn(HWND) {
    return false;
}

}  // namespace ce
