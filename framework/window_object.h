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
    // Creates a new window from the set, which gets a class name where it has none. A window that cannot be
    // created is reported to the user; the object then has no handle.
    WindowObject(WindowObject* parent, const wchar_t* title, PropertySet& properties);

    // Wraps a window that exists (or none yet). The object destroys it only if it owns it; FollowsParent
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

    // Makes an existing control's messages pass through this object, once.
    void Subclass();

    // Looks for the newest handler of this event and source, calls it and stores its result as the record's
    // result. Answers whether there was one.
    bool RaiseEvent(EventCode code, EventSource source, std::intptr_t argument, MessageRecord& record);

    // Typed forms of the registrations below: the method is one of the target's own class.
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
    // What becomes of a message that no handler takes.
    virtual LRESULT DefaultProcessing(MessageRecord& record);
    // The way of every message through the object: to the newest handler that was registered for it, else to
    // the class itself.
    virtual LRESULT Dispatch(MessageRecord& record);
    virtual void AddEventHandler(EventCode code, EventSource source, WindowObject* target, EventMethod method,
                                 std::uintptr_t extra);
    // On a child: into its own table when the event is one of its own, else into the parent's table, with
    // the child's handle as source or, when the parent is a dialog, the child's control id. Nothing comes
    // from a child without a window.
    virtual void AddNotificationHandler(EventCode code, WindowObject* target, EventMethod method,
                                        std::uintptr_t extra);
    virtual void Enable();
    virtual void Disable();

    void AddMessageHandler(UINT message, WindowObject* target, MessageMethod method, std::uintptr_t extra);

    // To be called at the very end of a window that the framework gets the messages of. No object keeps its
    // handle, nor that of a child that went with it: the system may give it to another window.
    static void WindowIsGone(HWND window);

  protected:
    // For windows that the system creates before it tells (dialogs): takes the handle into the map. Answers
    // whether it is there, so that messages find the object.
    bool Attach(HWND window);
    // Takes the handle out of the map and forgets it.
    void Detach();

    // A subclassed control's procedure from before; null without one.
    [[nodiscard]] WNDPROC OwnProcedure() const { return savedProcedure_; }

    // What the class does with a message of its own accord. It needs no table entry, which memory may be
    // short for: a dialog can be closed whatever happens.
    virtual LRESULT DispatchToClass(MessageRecord& record);

    // The object's window is gone, and not by the object's doing.
    virtual void LoseWindow();
    // The other object is gone: it is called no more.
    virtual void Forget(const WindowObject* gone);

  private:
    void Create(const wchar_t* title, PropertySet& properties);

    // All objects that there are, with a window or without.
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

// Whether the window's class is that of dialogs.
[[nodiscard]] bool IsDialogWindow(HWND window);
