#pragma once

// The headings of the result list. Each click on one counts, however soon it follows the last: the system
// makes two quick ones a double click, of which a heading knows nothing.

#include "framework/control.h"

class ResultHeading : public Control {
  public:
    // The list makes the heading and destroys it.
    ResultHeading(WindowObject* list, HWND heading);

  private:
    LRESULT OnDoubleClick(MessageRecord& record);
};
