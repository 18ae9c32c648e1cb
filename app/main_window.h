#pragma once

// The program's one top-level window: menu bar, the tab control with the three condition pages, and the
// result list. It owns every long-lived object and routes the commands.

#include "app/abort_dialog.h"
#include "app/about_box.h"
#include "app/registered_file_types.h"
#include "conditions/date_page.h"
#include "conditions/name_page.h"
#include "conditions/size_page.h"
#include "fileops/file_operation.h"
#include "framework/application_view.h"
#include "results/result_commands.h"
#include "results/result_list.h"
#include "search/search_query.h"

class MainWindow : public ApplicationView {
  public:
    MainWindow(const wchar_t* title, PropertySet& properties, Application& application);
    ~MainWindow() override;

    bool PreTranslate(MSG& message) override;

    // What the first picture does not show is created right after it, by a timer.
    void Show() override;

    // Creates those parts now; does nothing if they exist.
    void CompleteParts();

    // No command of the program starts it; it is here for callers that want one of its operations.
    [[nodiscard]] FileOperation& Operation() { return *fileOperation_; }

  protected:
    LRESULT OnWmActivate(MessageRecord& record) override;
    LRESULT OnWmDestroy(MessageRecord& record) override;
    void ShowAbout() override;

    // Keys and characters of the tab control.
    virtual LRESULT OnTabControlKeyDown(MessageRecord& record);
    virtual LRESULT OnTabControlChar(MessageRecord& record);

  private:
    static constexpr int PageCount = 3;

    // Construction, in this order, up to what the first picture shows.
    void AddBarButtons();
    void CreateDialogs();
    void SetInitialMenuState();
    void CreateTabControl(const RECT& area);
    void CreatePage(ConditionPage& page);
    void CreateResultList(const RECT& area);
    void RouteCommands();

    LRESULT OnWmClose(MessageRecord& record);
    LRESULT OnWmEndSession(MessageRecord& record);
    LRESULT OnWmTimer(MessageRecord& record);
    LRESULT OnWmInitMenuPopup(MessageRecord& record);
    LRESULT OnMenuCommand(EventArguments& arguments);
    LRESULT OnPageChanged(EventArguments& arguments);
    LRESULT OnResultDoubleClick(EventArguments& arguments);
    LRESULT OnResultKeyDown(EventArguments& arguments);
    LRESULT OnResultChanged(EventArguments& arguments);
    LRESULT OnResultRenamed(EventArguments& arguments);
    LRESULT OnUninstall(EventArguments& arguments);
    LRESULT OnSearchRun(EventArguments& arguments);

    // Returns false if there was none.
    bool EndWorkUnderWay();
    void SaveSettingsOnce();
    void PostClose();
    // Hides and disables the window, which tells another copy that this one is closing.
    void LeaveScreen();
    [[nodiscard]] bool IsBusy() const;
    void RunCommand(UINT command);
    void RunResultCommand(UINT command);
    void Activate();
    // Whether an Enter pressed in the list now is one more of the presses that started the last search.
    [[nodiscard]] bool BelongsToSearch(ULONGLONG now);
    void Find();
    [[nodiscard]] SearchQuery AskedQuery() const;
    void SetResultView(UINT command, DWORD view);
    void ResetConditions();
    void EnableResultCommands(bool enable);
    void ShowPage(int index);
    static void FocusOn(const WindowObject& object);
    [[nodiscard]] ConditionPage* Page(int index) const;

    SearchConditions conditions_;
    int currentPage_ = 0;
    bool closeAfterSearch_ = false;
    // Until when an Enter in the list still belongs to a search; in milliseconds of ce::GetTickCount64.
    ULONGLONG searchKeysEnd_ = 0;
    // Set once they are saved, and by an uninstall, so that the keys just removed are not written again.
    bool skipSaving_ = false;

    std::unique_ptr<RegisteredFileTypes> fileTypes_;

    // Deleted last to first: the pages in tab order, the list, the tab control, the dialogs.
    std::unique_ptr<AboutBox> aboutBox_;
    std::unique_ptr<FileOperation> fileOperation_;
    std::unique_ptr<AbortDialog> abortDialog_;
    std::unique_ptr<TabControl> tabControl_;
    std::unique_ptr<ResultList> results_;
    std::unique_ptr<ResultCommands> resultCommands_;
    std::unique_ptr<SizePage> sizePage_;
    std::unique_ptr<DatePage> datePage_;
    std::unique_ptr<NamePage> namePage_;
};
