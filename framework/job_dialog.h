#pragma once

// A modal dialog that does a long job itself. Once it is shown it posts itself COMMAND_RUN, and its one
// button stops the job. The job pumps messages without the keyboard handling of a dialog.

#include "framework/dialog.h"

class JobDialog : public Dialog {
  public:
    // The button is the one that stops the job.
    JobDialog(WindowObject* parent, const PropertySet& properties, int stopButtonId);
    ~JobDialog() override;

    INT_PTR RunModal() override;
    // True from the start of RunModal until it is about to return.
    [[nodiscard]] bool IsRunning() const { return running_; }

  protected:
    // Call at the end of the initialisation: shows the dialog and posts it COMMAND_RUN.
    void ShowAndStart();
    [[nodiscard]] bool HasBegun() const { return begun_; }

    // Does the job; called once per run. Ends the dialog or leaves that to RequestStop.
    virtual void DoJob(MessageRecord& record) = 0;
    // Called for the button, its keys and the window's Cancel.
    virtual void RequestStop() = 0;
    // Whether this key presses the button, which has the focus: no dialog loop is running that would know.
    [[nodiscard]] virtual bool StopsBy(const MessageRecord& key) const = 0;

    LRESULT OnWmCommand(MessageRecord& record) override;

  private:
    LRESULT OnButtonKey(MessageRecord& record);

    int stopButtonId_;
    std::unique_ptr<WindowObject> stopButton_;
    bool running_ = false;
    bool begun_ = false;
};
