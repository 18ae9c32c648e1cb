#pragma once

// The "Finding..." dialog: it runs the search as its own job, shows the folder that is being walked and
// offers Abort.

#include "framework/job_dialog.h"
#include "resources/resource_ids.h"
#include "search/search_receivers.h"

class AbortDialog : public JobDialog, public SearchProgress {
  public:
    explicit AbortDialog(WindowObject* parent);

    // The job: called once the dialog is shown; the dialog closes when it returns.
    template <class Target>
    void OnRun(Target* target, LRESULT (Target::*method)(EventArguments&)) {
        OnEvent(event::DialogRun, COMMAND_RUN, target, method);
    }

    INT_PTR RunModal() override;

    // What the Abort button does.
    void Abort();

    // SearchProgress. The text lags behind the walk by up to a tenth of a second.
    void EnterFolder(const wchar_t* folder) override;
    void BeforeLongFile() override;
    bool StopRequested() override;

  protected:
    LRESULT OnInitDialog(MessageRecord& record) override;
    void DoJob(MessageRecord& record) override;
    void RequestStop() override { Abort(); }
    [[nodiscard]] bool StopsBy(const MessageRecord& key) const override;

  private:
    void ShowFolder();

    bool abortRequested_ = false;
    bool folderPending_ = false;
    ULONGLONG lastShown_ = 0;  // in milliseconds of ce::GetTickCount64
    wchar_t folderText_[MAX_PATH] = L"";
};
