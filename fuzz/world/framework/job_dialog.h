#pragma once

// A dialog with a job and without a window, in the place of framework/job_dialog.h: running it does the job.

#include "framework/dialog.h"

class JobDialog : public Dialog {
  public:
    JobDialog(WindowObject* parent, const PropertySet& properties, int) : Dialog(parent, properties) {}

    INT_PTR RunModal() override {
        MessageRecord record;
        running_ = true;
        begun_ = false;
        OnInitDialog(record);
        begun_ = true;
        DoJob(record);
        running_ = false;
        return EndedWith();
    }
    [[nodiscard]] bool IsRunning() const { return running_; }

  protected:
    void ShowAndStart() {}
    [[nodiscard]] bool HasBegun() const { return begun_; }
    virtual void DoJob(MessageRecord& record) = 0;
    virtual void RequestStop() = 0;
    [[nodiscard]] virtual bool StopsBy(const MessageRecord& key) const = 0;

  private:
    bool running_ = false;
    bool begun_ = false;
};
