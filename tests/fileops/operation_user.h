#pragma once

// Whoever sits before a running file operation: answers its questions and error boxes as soon as they open,
// and keeps what they were.

#include <functional>
#include <string>
#include <vector>

#include "fileops/file_operation.h"

struct MetBox {
    // A question as its title with the number of its buttons, "Confirm File Replace/4"; an error as its
    // message, "Error: Access denied".
    std::string what;
    // A question is the main window's, an error the progress dialog's.
    bool ownerIsRight;
};

class OperationUser {
  public:
    // Box n gets the n-th answer, a button's id, and every further box the last; an error is closed by its OK
    // whatever the answer. Only one user may live at a time.
    OperationUser(const FileOperation& operation, std::vector<int> answers);
    ~OperationUser();
    OperationUser(const OperationUser&) = delete;
    OperationUser& operator=(const OperationUser&) = delete;

    // Called with each box before it is answered.
    std::function<void(HWND)> atBox;

    [[nodiscard]] const std::vector<MetBox>& Met() const { return met_; }

  private:
    static LRESULT CALLBACK AfterMessage(int code, WPARAM wParam, LPARAM lParam);
    void Meet(HWND box);

    const FileOperation& operation_;
    std::vector<int> answers_;
    std::vector<MetBox> met_;
    HHOOK hook_;
};
