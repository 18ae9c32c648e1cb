#pragma once

// The first page: name, contained text, folder to start in, sub-folders.

#include "conditions/condition_page.h"
#include "conditions/history_combo.h"

class NamePage : public ConditionPage {
  public:
    // Enter in a text field posts the find command to the search window.
    NamePage(WindowObject* parent, HWND searchWindow);

    // Empties name and location; the contained text, the sub-folder setting and the histories stay.
    void Reset() override;
    void FillQuery(SearchQuery& query) const override;

    // Both histories and the sub-folder setting, below HKEY_CURRENT_USER. The path is that of the program's
    // own key. Failures are silent: loading leaves the page as it started, saving loses the lists.
    void LoadSettings(const wchar_t* registryPath);
    void SaveSettings(const wchar_t* registryPath) const;

  protected:
    void SetUpControls() override;
    void LayOut() override;

  private:
    LRESULT OnEnterInCombo(EventArguments& arguments);
    LRESULT OnEnterInContent(EventArguments& arguments);
    LRESULT OnTabInName(EventArguments& arguments);
    LRESULT OnTabInLocation(EventArguments& arguments);
    LRESULT OnBrowse(EventArguments& arguments);

    void StartSearch();

    HWND searchWindow_;
    std::unique_ptr<HistoryCombo> name_;
    std::unique_ptr<HistoryCombo> location_;
    std::unique_ptr<TextField> content_;
};
