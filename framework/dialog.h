#pragma once

// A dialog from a template: modal, modeless, or a page inside another window. The shell sets it up as on a
// Pocket PC, with a small menu bar for Cancel and OK, and it draws its own title line.

#include "framework/container_window.h"
#include "platform/handles.h"

// Buttons on a dialog's menu bar.
enum class DialogBar { None = 0, Cancel = 1, CancelAndOk = 2 };

class Dialog : public ContainerWindow {
  public:
    static constexpr INT_PTR ResultOk = 1;
    static constexpr INT_PTR ResultCancel = 2;

    // Takes the template's name, the init argument and the full-screen flags from the set; the name is not
    // copied. Creates no window yet.
    Dialog(WindowObject* parent, const PropertySet& properties);
    ~Dialog() override;

    // Creates the modeless window unless there is one already. Without a template there is no window.
    void CreateModeless();
    // Creates the window, shows it and brings it to the front.
    void ShowModeless();

    // Runs the dialog and returns its result, or -1 if the template is missing or the dialog is already open.
    // It can be run again.
    virtual INT_PTR RunModal();
    // Ends a modal dialog after destroying its menu bar. Does nothing if the dialog is not running or is
    // already ending, so the first result counts.
    virtual void End(INT_PTR result);

    // The handler is called with the init argument before the dialog wraps its controls.
    template <class Target>
    void OnInitialise(Target* target, LRESULT (Target::*method)(EventArguments&), std::uintptr_t extra = 0) {
        initialisation_ = {target, static_cast<EventMethod>(method), extra};
    }

    [[nodiscard]] HWND MenuBar() const { return menuBar_; }
    // For what a dialog draws or creates itself; the template's controls have a font of their own.
    [[nodiscard]] HFONT Font() const { return font_.Get(); }

    // Returns 0, a dialog procedure's answer to what nobody handles.
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

    // Attaches the window being created: the system calls the dialog procedure before it returns the handle.
    // Returns false if messages would not find the object.
    [[nodiscard]] bool TakeWindow(HWND window);
    // Whether this is the WM_INITDIALOG of the creation. Any program can send another one later.
    [[nodiscard]] static bool TellsOfCreation(HWND window, UINT message);
    // Passes a dialog procedure's message on to the window's object; returns 0 if there is none.
    static INT_PTR DispatchToObject(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    // The template's resource, or null.
    [[nodiscard]] const DLGTEMPLATE* FindTemplate() const;

    // Moves the dialog to the middle of its parent, or of the screen if it has none.
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

    // False for a tooltip, another dialog or a window that is gone.
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
