#pragma once

// A modal dialog that does a long piece of work itself. Once it is shown it sends itself COMMAND_RUN, and its
// one button stops the work. The work pumps messages without the dialog's keyboard rules.

#include "framework/dialog.h"

class JobDialog : public Dialog {
  public:
    // The button is the one that stops the work.
    JobDialog(WindowObject* parent, const PropertySet& properties, int stopButtonId);
    ~JobDialog() override;

    INT_PTR RunModal() override;
    // From the dialog's creation until RunModal is about to return.
    [[nodiscard]] bool IsRunning() const { return running_; }

  protected:
    // Called by the initialisation when everything is in place: shows the dialog and sends it COMMAND_RUN.
    void ShowAndStart();
    [[nodiscard]] bool HasBegun() const { return begun_; }

    // The work, once a run. Ends the dialog or leaves that to RequestStop.
    virtual void DoJob(MessageRecord& record) = 0;
    // What the button, its keys and the window's Cancel do.
    virtual void RequestStop() = 0;
    // The button has the focus, and no dialog's loop runs that knows which key presses it.
    [[nodiscard]] virtual bool StopsBy(const MessageRecord& key) const = 0;

    LRESULT OnWmCommand(MessageRecord& record) override;

  private:
    LRESULT OnButtonKey(MessageRecord& record);

    int stopButtonId_;
    std::unique_ptr<WindowObject> stopButton_;
    bool running_ = false;
    bool begun_ = false;
};
