#pragma once

// Dialogs without windows, in the place of framework/dialog.h: running one initialises it and gives it the
// command that it posts to itself.

#include <map>

#include "framework/handler_tables.h"
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
    void OnCommand(EventSource command, Target*, LRESULT (Target::*method)(EventArguments&)) {
        commands_[command] = static_cast<EventMethod>(method);
    }
    template <class Target>
    void OnMessage(UINT, Target*, LRESULT (Target::*)(MessageRecord&)) {}
    void Subclass() {}
    LRESULT DefaultProcessing(MessageRecord&) { return 0; }

  protected:
    void Raise(EventSource command) {
        MessageRecord record;
        EventArguments arguments{0, 0, record};
        (this->*commands_.at(command))(arguments);
    }

  private:
    WindowObject* parent_;
    std::map<EventSource, EventMethod> commands_;
};

class Dialog : public WindowObject {
  public:
    static constexpr INT_PTR ResultOk = 1;

    Dialog(WindowObject* parent, const PropertySet&) : WindowObject(parent) {}

    virtual INT_PTR RunModal() {
        MessageRecord record;
        OnInitDialog(record);
        Raise(CommandPostedAtStart);
        return endedWith_;
    }
    virtual void End(INT_PTR result) { endedWith_ = result; }

  protected:
    virtual LRESULT OnInitDialog(MessageRecord&) { return 1; }
    virtual LRESULT OnWmCommand(MessageRecord&) { return 0; }
    virtual LRESULT OnWmActivate(MessageRecord&) { return 0; }

  private:
    static constexpr EventSource CommandPostedAtStart = 10000;

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
