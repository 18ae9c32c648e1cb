#include "tests/fileops/asked_question.h"

#include "resources/resource_ids.h"

namespace {

struct Asking {
    const Question* question;
    const std::function<void(HWND)>* doing;
    ShownQuestion* shown;
};

std::wstring TextOf(HWND window) {
    wchar_t text[1024] = L"";
    GetWindowTextW(window, text, 1024);
    return text;
}

HICON IconOf(HWND dialog, int id) {
    return reinterpret_cast<HICON>(SendDlgItemMessageW(dialog, id, STM_GETIMAGE, IMAGE_ICON, 0));
}

void FillAndLook(HWND dialog, const Asking* asking) {
    asking->question->Fill(dialog);
    ShownQuestion& shown = *asking->shown;
    shown.window = dialog;
    shown.owner = GetWindow(dialog, GW_OWNER);
    shown.title = TextOf(dialog);
    shown.question = TextOf(GetDlgItem(dialog, STATIC_QUESTION));
    shown.existingDetails = TextOf(GetDlgItem(dialog, STATIC_EXISTING_DETAILS));
    shown.newDetails = TextOf(GetDlgItem(dialog, STATIC_NEW_DETAILS));
    shown.yesToAll = TextOf(GetDlgItem(dialog, BUTTON_YES_TO_ALL));
    shown.icon = IconOf(dialog, STATIC_ICON);
    shown.existingIcon = IconOf(dialog, STATIC_EXISTING_ICON);
    shown.newIcon = IconOf(dialog, STATIC_NEW_ICON);
    (*asking->doing)(dialog);
}

}  // namespace

AskedQuestion Ask(WindowObject* owner, const Question& question, const std::function<void(HWND)>& doing) {
    AskedQuestion asked;
    const Asking asking = {&question, &doing, &asked.shown};
    asked.result = AskQuestion(owner, {question.TemplateName(), FillAndLook, &asking});
    return asked;
}

AskedQuestion AskAndClick(WindowObject* owner, const Question& question, int button) {
    return Ask(owner, question,
               [button](HWND dialog) { PostMessageW(GetDlgItem(dialog, button), BM_CLICK, 0, 0); });
}
