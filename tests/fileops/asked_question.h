#pragma once

// A question asked with its real template: what it shows once it is filled, and how it ends when a user does
// something.

#include <functional>
#include <string>

#include "fileops/confirmation_dialog.h"

struct ShownQuestion {
    HWND window = nullptr;
    HWND owner = nullptr;
    std::wstring title;
    std::wstring question;
    std::wstring existingDetails;
    std::wstring newDetails;
    std::wstring yesToAll;  // the label of that button
    HICON icon = nullptr;
    HICON existingIcon = nullptr;
    HICON newIcon = nullptr;
};

struct AskedQuestion {
    ShownQuestion shown;
    ConfirmResult result = ConfirmResult::Cancel;
};

// The user's doing is started before the dialog is shown: post it.
[[nodiscard]] AskedQuestion Ask(WindowObject* owner, const Question& question,
                                const std::function<void(HWND dialog)>& doing);

// The same, answered with the button.
[[nodiscard]] AskedQuestion AskAndClick(WindowObject* owner, const Question& question, int button = IDNO);
