#pragma once

// The base of the three condition pages: a child dialog that does without a dialog's full-screen set-up and
// bar.

#include "framework/control.h"
#include "framework/dialog.h"
#include "framework/property_set.h"
#include "search/search_query.h"

class ConditionPage : public Dialog {
  public:
    void Show() { ShowWindow(Handle(), SW_SHOW); }
    void Hide() { ShowWindow(Handle(), SW_HIDE); }

    // "New condition".
    virtual void Reset() = 0;

    // Writes this page's part of the query. A page that could not be created restricts nothing.
    virtual void FillQuery(SearchQuery& query) const = 0;

    // Places the page and widens its fields to use the width of the screen.
    void Move(int x, int y, int width, int height) override;

  protected:
    ConditionPage(WindowObject* parentObject, const PropertySet& properties)
        : Dialog(parentObject, properties) {}

    // Wraps the controls and gives them their first contents.
    virtual void SetUpControls() = 0;
    // Widens the fields; the templates are made for the narrowest screen.
    virtual void LayOut() {}
    LRESULT OnInitDialog(MessageRecord& record) override;
    // A page cannot be cancelled, and a list that it drops shows whole entries.
    LRESULT OnWmCommand(MessageRecord& record) override;

    [[nodiscard]] HWND Item(int id) const { return DialogItem(*this, id); }
    [[nodiscard]] bool IsChecked(int id) const;
};
