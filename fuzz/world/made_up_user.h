#pragma once

// Who answers the questions of a file operation, reads its errors and stops it.

#include <string>

#include "fileops/confirmation_dialog.h"

class MadeUpUser {
  public:
    virtual ~MadeUpUser() = default;

    // The path is the one that the question is about; of a replacing, the file that exists. Yes to All is not
    // always there.
    [[nodiscard]] virtual ConfirmResult Answer(const std::wstring& path, bool offersYesToAll) = 0;
    virtual void ReadError() = 0;
    // Between two files.
    virtual void HaveAMoment() = 0;
};

// For the calls of the program from here on.
void SetUser(MadeUpUser* user);
