#pragma once

// A modal property sheet and its pages, on top of the system's own.

#include <vector>

#include "framework/dialog.h"

class PropertySheetPage : public Dialog {
  public:
    // The template's name comes from the set; the title is copied.
    PropertySheetPage(WindowObject* parent, const wchar_t* title, const PropertySet& properties);

    // Creates the page's handle, which the caller passes to a sheet or destroys. Null if the template is
    // missing: a sheet that cannot create its page cannot be closed either.
    [[nodiscard]] HPROPSHEETPAGE CreatePage();

    // Called when the user applies the changes.
    template <class Target>
    void OnApply(Target* target, LRESULT (Target::*method)(EventArguments&)) {
        OnEvent(event::Apply, 0, target, method);
    }

  protected:
    // Wraps and fills the page's controls.
    virtual void SetUpControls() = 0;

    LRESULT OnInitDialog(MessageRecord& record) override;
    LRESULT OnWmNotify(MessageRecord& record) override;

  private:
    static UINT CALLBACK PageCallback(HWND window, UINT message, PROPSHEETPAGEW* page);
    static INT_PTR CALLBACK PageProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    std::vector<wchar_t> titleText_;
};

class PropertySheetDialog {
  public:
    // The caption is not copied.
    PropertySheetDialog(WindowObject* ownerObject, const wchar_t* captionText)
        : owner_(ownerObject), caption_(captionText) {}
    virtual ~PropertySheetDialog() = default;
    PropertySheetDialog(const PropertySheetDialog&) = delete;
    PropertySheetDialog& operator=(const PropertySheetDialog&) = delete;

    // The caller keeps the page, which must outlive the run.
    void AddPage(PropertySheetPage& page) { pages_.push_back(&page); }
    void RemovePage(std::size_t index) { pages_.erase(pages_.begin() + static_cast<std::ptrdiff_t>(index)); }

    // Shows the sheet until the user closes it.
    void Run();

  private:
    WindowObject* owner_;
    const wchar_t* caption_;
    std::vector<PropertySheetPage*> pages_;
};
