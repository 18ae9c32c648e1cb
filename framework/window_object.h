#pragma once

// The base of every window, dialog and control object: it owns or wraps one window handle, is found from
// that handle through the window map, and gets its messages through one shared window procedure, which
// turns each into a call of a registered handler or of the default processing.

#include <memory>
#include <span>

#include "framework/dispatch_tables.h"
#include "framework/event_codes.h"
#include "framework/property_set.h"
#include "platform/windows_ce.h"

enum class Ownership { Wrapped, Owned, FollowsParent };

class WindowObject {
  public:
    // Creates a new window from the set, which gets a class name if it has none. If the window cannot be
    // created, the user is told and the object has no handle.
    WindowObject(WindowObject* parent, const wchar_t* title, PropertySet& properties);

    // Wraps an existing window, or none yet. The object destroys it only if it owns it; with FollowsParent it
    // owns it unless the parent's window is a dialog.
    WindowObject(WindowObject* parent, HWND handle, Ownership ownership = Ownership::Wrapped);

    virtual ~WindowObject();
    WindowObject(const WindowObject&) = delete;
    WindowObject& operator=(const WindowObject&) = delete;

    [[nodiscard]] HWND Handle() const { return handle_; }
    [[nodiscard]] WindowObject* Parent() const { return parent_; }
    // The parent's window, or null.
    [[nodiscard]] HWND ParentHandle() const { return parent_ != nullptr ? parent_->handle_ : nullptr; }
    [[nodiscard]] bool OwnsHandle() const { return ownsHandle_; }

    // Set by the main window on its condition pages.
    void MarkAsPage() { isPage_ = true; }
    [[nodiscard]] bool IsPage() const { return isPage_; }

    // Routes an existing control's messages through this object. Does nothing the second time.
    void Subclass();

    // Calls the newest handler of this event and source, and stores its result in the record. Returns false
    // if there is none.
    bool RaiseEvent(EventCode code, EventSource source, std::intptr_t argument, MessageRecord& record);

    // Typed forms of the registrations below, for a method of the target's own class.
    template <class Target>
    void OnMessage(UINT message, Target* target, LRESULT (Target::*method)(MessageRecord&),
                   std::uintptr_t extra = 0) {
        AddMessageHandler(message, target, static_cast<MessageMethod>(method), extra);
    }
    template <class Target>
    void OnEvent(EventCode code, EventSource source, Target* target,
                 LRESULT (Target::*method)(EventArguments&), std::uintptr_t extra = 0) {
        AddEventHandler(code, source, target, static_cast<EventMethod>(method), extra);
    }
    template <class Target>
    void OnCommand(UINT command, Target* target, LRESULT (Target::*method)(EventArguments&),
                   std::uintptr_t extra = 0) {
        OnEvent(event::Command, command, target, method, extra);
    }
    template <class Target>
    void OnNotification(EventCode code, Target* target, LRESULT (Target::*method)(EventArguments&),
                        std::uintptr_t extra = 0) {
        AddNotificationHandler(code, target, static_cast<EventMethod>(method), extra);
    }

    // The area that children may fill, in client coordinates.
    [[nodiscard]] virtual RECT LayoutRectangle() const;
    virtual void Move(int x, int y, int width, int height);
    // The class's table of native notification codes; empty here.
    [[nodiscard]] virtual NativeCodeTable NativeCodes() const;
    // The events that the object raises on itself rather than on its parent; none here.
    [[nodiscard]] virtual std::span<const EventCode> OwnEvents() const;
    // Handles a message that no handler takes.
    virtual LRESULT DefaultProcessing(MessageRecord& record);
    // Every message arrives here, and goes to the newest handler registered for it, else to the class itself.
    virtual LRESULT Dispatch(MessageRecord& record);
    virtual void AddEventHandler(EventCode code, EventSource source, WindowObject* target, EventMethod method,
                                 std::uintptr_t extra);
    // Registers on this child if the event is one of its own; else on the parent, with the child's handle as
    // the source, or its control id if the parent is a dialog. Does nothing for a child without a window.
    virtual void AddNotificationHandler(EventCode code, WindowObject* target, EventMethod method,
                                        std::uintptr_t extra);
    virtual void Enable();
    virtual void Disable();

    void AddMessageHandler(UINT message, WindowObject* target, MessageMethod method, std::uintptr_t extra);

    // Call with the last message of a window. No object then keeps its handle or a destroyed child's: the
    // system may give it to another window.
    static void WindowIsGone(HWND window);

  protected:
    // For a window that the system creates by itself, such as a dialog: enters the handle in the map. Returns
    // false if it could not, so that messages would not find the object.
    bool Attach(HWND window);
    // Removes the handle from the map and forgets it.
    void Detach();

    // The procedure that a subclassed control had before; null if it is not subclassed.
    [[nodiscard]] WNDPROC OwnProcedure() const { return savedProcedure_; }

    // What the class itself does with a message. It needs no table entry, for which memory might be short: a
    // dialog can always be closed.
    virtual LRESULT DispatchToClass(MessageRecord& record);

    // Called when the object's window was destroyed, but not by the object.
    virtual void LoseWindow();
    // Called when the other object is gone and must not be called any more.
    virtual void Forget(const WindowObject* gone);

  private:
    void Create(const wchar_t* title, PropertySet& properties);

    // All existing objects, with or without a window.
    static WindowObject* firstObject;
    WindowObject* nextObject_ = nullptr;
    void JoinObjects();
    void LeaveObjects();

    HWND handle_ = nullptr;
    std::unique_ptr<EventTable> events_;
    std::unique_ptr<MessageTable> messages_;
    WindowObject* parent_ = nullptr;
    bool ownsHandle_ = false;
    bool isPage_ = false;
    WNDPROC savedProcedure_ = nullptr;
};

// The window procedure of every registered class and every subclassed control.
LRESULT CALLBACK FrameworkWindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// Whether the window is a dialog.
[[nodiscard]] bool IsDialogWindow(HWND window);
