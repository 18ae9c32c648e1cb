#pragma once

// A dialog from a template: modal, modeless, or a page inside another window. It is set up by the shell as
// on a Pocket PC, with a small menu bar of Cancel and OK, and its title line is drawn.

#include "framework/container_window.h"
#include "platform/handles.h"

// Buttons on a dialog's menu bar.
enum class DialogBar { None = 0, Cancel = 1, CancelAndOk = 2 };

class Dialog : public ContainerWindow {
  public:
    static constexpr INT_PTR ResultOk = 1;
    static constexpr INT_PTR ResultCancel = 2;

    // The template's name, the init argument and the full-screen flags come from the set; the name is kept,
    // not copied. The window comes later.
    Dialog(WindowObject* parent, const PropertySet& properties);
    ~Dialog() override;

    // Creates the modeless window unless there is one. A missing template leaves the object without one.
    void CreateModeless();
    // Creates it, shows it and brings it to the front.
    void ShowModeless();

    // Runs the dialog and returns its result, -1 when the template is missing or the dialog is up already. It
    // can be run again.
    virtual INT_PTR RunModal();
    // Ends a modal dialog; its menu bar goes first. One that is not running or is ending already is left
    // alone, so the first result counts.
    virtual void End(INT_PTR result);

    // Called on initialisation with the init argument, before the dialog wraps its controls.
    template <class Target>
    void OnInitialise(Target* target, LRESULT (Target::*method)(EventArguments&), std::uintptr_t extra = 0) {
        initialisation_ = {target, static_cast<EventMethod>(method), extra};
    }

    [[nodiscard]] HWND MenuBar() const { return menuBar_; }
    // For what a dialog draws or creates itself; a template brings its own.
    [[nodiscard]] HFONT Font() const { return font_.Get(); }

    // A dialog procedure's answer for what nobody handles.
    LRESULT DefaultProcessing(MessageRecord& record) override;

  protected:
    LRESULT OnWmCommand(MessageRecord& record) override;
    LRESULT OnWmNotify(MessageRecord& record) override;
    LRESULT OnWmDrawItem(MessageRecord& record) override;
    LRESULT OnWmActivate(MessageRecord& record) override;
    virtual LRESULT OnInitDialog(MessageRecord& record);
    virtual LRESULT OnWmPaint(MessageRecord& record);
    virtual LRESULT OnWmCtlColorStatic(MessageRecord& record);

    // The two halves of the usual initialisation.
    void CallInitialisation(MessageRecord& record);
    void SetUpShell(DWORD fullScreenFlags, DialogBar bar);

    LRESULT DispatchToClass(MessageRecord& record) override;
    void LoseWindow() override;
    void Forget(const WindowObject* gone) override;

    // Takes the window that has just been created, of which the system tells its dialog procedure before it
    // returns the handle. False if messages could not find the object.
    [[nodiscard]] bool TakeWindow(HWND window);
    // Whether this is the message with which the system tells of it. Anybody can send another one.
    [[nodiscard]] static bool TellsOfCreation(HWND window, UINT message);
    // Hands a dialog procedure's message to the window's object; 0 if there is none.
    static INT_PTR DispatchToObject(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    // The resource of the template, or null.
    [[nodiscard]] const DLGTEMPLATE* FindTemplate() const;

    // Moves the dialog to the middle of its parent, or of the screen when it has none.
    void Centre();

    // The event code of a control's notification, by the control's window class.
    [[nodiscard]] static EventCode TranslateByClassName(HWND control, std::uint32_t native);

    [[nodiscard]] DWORD FullScreenFlags() const { return fullScreenFlags_; }
    [[nodiscard]] const wchar_t* TemplateName() const { return templateName_; }

  private:
    struct Initialisation {
        WindowObject* target = nullptr;
        EventMethod method = nullptr;
        std::uintptr_t extra = 0;
    };

    static INT_PTR CALLBACK ModalProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static INT_PTR CALLBACK ModelessProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    // A tooltip, another dialog or a window that is gone is none.
    [[nodiscard]] bool IsOwnControl(HWND window) const;
    LRESULT OnWmCtlColorDialog(MessageRecord& record);
    void ShowIconOfOwner();
    void CreateMenuBar(DialogBar bar);
    void DestroyMenuBar();

    const wchar_t* templateName_;
    std::uintptr_t initArgument_;
    DWORD fullScreenFlags_;
    HWND menuBar_ = nullptr;
    UniqueFont font_;
    Initialisation initialisation_;
    bool canEnd_ = false;
};
