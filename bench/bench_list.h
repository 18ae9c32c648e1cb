#pragma once

// A result list on a window of the size of the smaller device's screen, without the program around it.

#include "framework/application.h"
#include "results/result_list.h"

class BenchList {
  public:
    BenchList();

    [[nodiscard]] ResultList& List() { return *list_; }
    [[nodiscard]] HWND Handle() const { return list_->Handle(); }
    [[nodiscard]] WindowObject& Screen() { return *screen_; }

  private:
    std::unique_ptr<Application> application_;
    std::unique_ptr<WindowObject> screen_;
    std::unique_ptr<ResultList> list_;
};
