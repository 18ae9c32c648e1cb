#include "tests/hands/refused_life.h"

#include <commctrl.h>
#include <prsht.h>

#include <algorithm>
#include <fstream>
#include <iterator>

#include "resources/resource_ids.h"
#include "tests/program/program_world.h"
#include "tests/support/deadline.h"
#include "tests/support/user_input.h"

namespace {

constexpr const char* StepNames[] = {
    "",           "start",    "search",     "sort",   "view",  "failed rename", "rename", "delete",
    "properties", "shortcut", "start menu", "browse", "about", "uninstall",     "close"};

constexpr DWORD LongestStep = 60000;
// A dialog or an edit that is still there after this time is told to go once more, in another way.
constexpr ULONGLONG Patience = 1500;
constexpr ULONGLONG LongestSearch = 20000;
constexpr LONG Always = 0x7FFFFFFF;
constexpr int IconlessText = 0xFFFF;

struct ControlSearch {
    int id;
    HWND found;
};

BOOL CALLBACK TakeControl(HWND window, LPARAM parameter) {
    auto& search = *reinterpret_cast<ControlSearch*>(parameter);
    if (GetDlgCtrlID(window) != search.id) return TRUE;
    search.found = window;
    return FALSE;
}

// A control of the dialog or of a page in it.
HWND ControlOf(HWND dialog, int id) {
    ControlSearch search = {id, nullptr};
    EnumChildWindows(dialog, TakeControl, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

std::wstring TextOf(HWND window) {
    wchar_t text[512] = L"";
    DWORD_PTR length = 0;
    SendMessageTimeoutW(window, WM_GETTEXT, 512, reinterpret_cast<LPARAM>(text), SMTO_NORMAL, LongestStep,
                        &length);
    return text;
}

bool HasText(HWND window, const wchar_t* english, const wchar_t* japanese) {
    const std::wstring text = TextOf(window);
    return text == english || text == japanese;
}

void Command(HWND dialog, int id) {
    PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED),
                 reinterpret_cast<LPARAM>(GetDlgItem(dialog, id)));
}

bool IsSearchDialog(HWND dialog) {
    return HasText(dialog, L"Finding...", L"検索中...");
}

void ReadFolder(const std::wstring& root, const std::wstring& folder, KeptFiles& files) {
    WIN32_FIND_DATAW data;
    const HANDLE search = FindFirstFileW((root + L"\\" + folder + L"*").c_str(), &data);
    if (search == INVALID_HANDLE_VALUE) return;
    do {
        const std::wstring name = data.cFileName;
        if (name == L"." || name == L"..") continue;
        const std::wstring path = folder + name;
        if ((data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
            ReadFolder(root, path + L"\\", files);
            continue;
        }
        std::ifstream stream((root + L"\\" + path).c_str(), std::ios::binary);
        const std::string content{std::istreambuf_iterator<char>(stream), {}};
        files[path] = {content, data.dwFileAttributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN |
                                                         FILE_ATTRIBUTE_SYSTEM)};
    } while (FindNextFileW(search, &data));
    FindClose(search);
}

// As after an earlier life: an uninstall has something to remove.
void StoreNumber(const wchar_t* name, DWORD number) {
    RegSetKeyValueW(HKEY_CURRENT_USER, L"Software\\QuorinSoft\\QuorinSearch", name, REG_DWORD, &number,
                    sizeof number);
}

}  // namespace

const char* NameOf(LifeStep step) {
    return StepNames[static_cast<LONG>(step)];
}

const StepReport& LifeReport::At(LifeStep step) const {
    static const StepReport none;
    const auto found = steps.find(step);
    return found != steps.end() ? found->second : none;
}

RefusedLife::RefusedLife() : tree_(L"QuorinLife"), drive_(tree_.Root()) {
    tree_.AddFolder(L"Windows\\Start Menu\\Programs");
    tree_.AddFolder(L"Windows\\ｽﾀｰﾄ ﾒﾆｭｰ\\ﾌﾟﾛｸﾞﾗﾑ");
    RestoreFiles();
}

KeptFiles RefusedLife::FilesAtStart() const {
    return {{L"alpha.txt", {"alpha has a needle", 0}},
            {L"beta.txt", {"beta\r\nhas a needle\r\n", 0}},
            {L"other.log", {"nothing", 0}},
            {L"gamma\\delta.txt", {"delta has a needle", 0}},
            {L"gamma\\empty.txt", {"", 0}},
            {L"link.lnk", {"17#\\gamma\\needle.txt", 0}},
            {L"gamma\\needle.txt", {"the target", 0}}};
}

KeptFiles RefusedLife::Files() const {
    KeptFiles files;
    ReadFolder(tree_.Root(), L"", files);
    return files;
}

void RefusedLife::RestoreFiles() {
    const KeptFiles before = Files();
    const KeptFiles wanted = FilesAtStart();
    for (const auto& [path, file] : before) {
        tree_.SetAttributes(path, FILE_ATTRIBUTE_NORMAL);
        if (!wanted.contains(path)) DeleteFileW((tree_.Root() + L"\\" + path).c_str());
    }
    for (const auto& [path, file] : wanted)
        if (!before.contains(path) || before.at(path) != file) tree_.AddFile(path, file.content);
}

LifeReport RefusedLife::Run(const LifePlan& plan) {
    report_ = {};
    lasting_.reset();
    RestoreFiles();
    PrepareRegistry();
    StoreNumber(L"Sub Folder", 0);
    program_.Refuse(0);
    program_.RefuseCall(0, 0, 0, 0);
    for (const LifeStep step : plan.steps) {
        step_ = step;
        if (step != LifeStep::Start && !program_.IsRunning()) break;
        const auto refusal = plan.refusals.find(step);
        if (refusal != plan.refusals.end()) lasting_ = refusal->second;
        Do(step);
        if (lasting_ && !lasting_->fromThenOn) lasting_.reset();
    }
    report_.exitCode = program_.ExitCode();
    return report_;
}

void RefusedLife::Do(LifeStep step) {
    now_ = &report_.steps[step];
    answered_.clear();
    program_.NoteCalls(static_cast<LONG>(step));
    now_->isReached = Act(step);
    Serve();
    program_.NoteCalls(0);
    now_->timesRefused = program_.TimesRefused();
    if (!lasting_ || !lasting_->fromThenOn) program_.RefuseCall(0, 0, 0, 0);
}

// Just before the program is told to do something.
void RefusedLife::Begin() {
    if (!lasting_) return;
    if (lasting_->fromThenOn && program_.TimesRefused() > 0) return;
    program_.RefuseCall(lasting_->call, lasting_->place, lasting_->code, lasting_->fromThenOn ? Always : 1);
}

bool RefusedLife::Act(LifeStep step) {
    switch (step) {
        case LifeStep::Start:
            Begin();
            program_.Launch(drive_.Root());
            return true;
        case LifeStep::Search:
            return Search();
        case LifeStep::Sort:
            return Sort();
        case LifeStep::View:
            ActOnView();
            return true;
        case LifeStep::FailedRename:
        case LifeStep::Rename:
            return ActOnRow(ToRename, COMMAND_RENAME);
        case LifeStep::Delete:
            return ActOnRow(ToDelete, COMMAND_DELETE);
        case LifeStep::Properties:
            return ActOnRow(ToChange, COMMAND_PROPERTIES);
        case LifeStep::Shortcut:
            return ActOnRow(Shortcut, COMMAND_PROPERTIES);
        case LifeStep::StartMenu:
            return ActOnRow(ToChange, COMMAND_ADD_TO_START_MENU);
        case LifeStep::Browse:
            return Browse();
        case LifeStep::About:
        case LifeStep::Uninstall:
            Begin();
            Post(COMMAND_ABOUT);
            return true;
        case LifeStep::Close:
            report_.hadNamePage = program_.PageWith(CHECK_SUBFOLDERS) != nullptr;
            if (report_.hadNamePage)
                report_.subFolders = SendMessageW(program_.Control(CHECK_SUBFOLDERS), BM_GETCHECK, 0, 0);
            report_.rows = program_.NamesOfRows();
            Begin();
            PostMessageW(program_.Window(), WM_CLOSE, 0, 0);
            return true;
    }
    return false;
}

bool RefusedLife::Search() {
    report_.hadWindow = true;
    if (const HWND page = program_.PageWith(CHECK_SUBFOLDERS)) {
        SendMessageW(GetDlgItem(page, COMBO_NAME), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L""));
        SendMessageW(GetDlgItem(page, EDIT_CONTENT), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"needle"));
        SendMessageW(GetDlgItem(page, CHECK_SUBFOLDERS), BM_SETCHECK, BST_CHECKED, 0);
    }
    Begin();
    Post(COMMAND_FIND);
    return true;
}

// A click on the first heading.
bool RefusedLife::Sort() {
    const HWND list = program_.Child(WC_LISTVIEWW);
    const HWND heading = list != nullptr ? FindWindowExW(list, nullptr, WC_HEADERW, nullptr) : nullptr;
    Begin();
    PostMessageW(heading, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(20, 5));
    PostMessageW(heading, WM_LBUTTONUP, 0, MAKELPARAM(20, 5));
    return heading != nullptr;
}

void RefusedLife::ActOnView() {
    Begin();
    constexpr UINT Commands[] = {COMMAND_LARGE_ICON, COMMAND_DETAILS, COMMAND_CHECK_CASE, COMMAND_CHECK_CASE};
    for (const UINT command : Commands)
        Post(command);
    Serve();
    if (!program_.IsRunning()) return;
    PressKey(VK_F10);
    static_cast<void>(HoldsWithin(300, [] { return FindWindowW(L"#32768", nullptr) != nullptr; }));
}

bool RefusedLife::ActOnRow(const std::wstring& name, UINT command) {
    const std::vector<std::wstring> rows = program_.NamesOfRows();
    const auto row = std::ranges::find(rows, name);
    if (row == rows.end()) return false;
    program_.SelectRow(static_cast<int>(row - rows.begin()));
    Begin();
    Post(command);
    return true;
}

bool RefusedLife::Browse() {
    const HWND button = program_.Control(BUTTON_BROWSE);
    Begin();
    PostMessageW(button, BM_CLICK, 0, 0);
    return button != nullptr;
}

void RefusedLife::Post(UINT command) const {
    PostMessageW(program_.Window(), WM_COMMAND, command, 0);
}

// Until the program waits for commands, or has ended. It is looked at twice: what ends a dialog may have
// posted itself something more.
void RefusedLife::Serve() {
    WaitUntil(
        std::string("the program to be done with the step: ") + NameOf(step_),
        [this] { return IsServed() && IsServed(); }, LongestStep);
}

bool RefusedLife::IsServed() {
    if (!program_.IsRunning()) return true;
    if (const HWND dialog = program_.OpenDialog()) {
        AnswerDialog(dialog);
        return false;
    }
    const HWND window = program_.Window();
    if (window == nullptr || !IsWindowVisible(window)) return false;
    if (EndsEdit() || ClosesMenu()) return false;
    if (!IsWindowEnabled(window) || !program_.TakesQueue(200)) return false;
    return step_ != LifeStep::Close && program_.OpenDialog() == nullptr && IsWindowEnabled(window) != FALSE &&
           FindWindowW(L"#32768", nullptr) == nullptr && !EndsEdit();
}

void RefusedLife::AnswerDialog(HWND dialog) {
    const ULONGLONG time = GetTickCount64();
    const auto known = answered_.find(dialog);
    if (known == answered_.end()) {
        answered_[dialog] = time;
        AnswerFirst(dialog);
        return;
    }
    const bool searches = IsSearchDialog(dialog);
    if (time - known->second < (searches ? LongestSearch : Patience)) return;
    now_->isAborted = now_->isAborted || searches;
    known->second = time;
    Command(dialog, IDCANCEL);
}

void RefusedLife::AnswerFirst(HWND dialog) {
    if (AnswerBox(dialog) || IsSearchDialog(dialog)) return;
    if (ControlOf(dialog, TREE_FOLDERS) != nullptr) {
        Command(dialog, IDOK);
    } else if (GetDlgItem(dialog, BUTTON_UNINSTALL) != nullptr) {
        Command(dialog, step_ == LifeStep::Uninstall ? BUTTON_UNINSTALL : IDOK);
    } else if (GetDlgItem(dialog, IDYES) != nullptr) {
        now_->askedToDelete = step_ == LifeStep::Delete;
        Command(dialog, IDYES);
    } else {
        TakeSheet(dialog);
    }
}

// The program's message boxes have one button and one text.
bool RefusedLife::AnswerBox(HWND dialog) {
    const HWND text = GetDlgItem(dialog, IconlessText);
    if (HasText(dialog, L"Fatal", L"致命的なｴﾗｰ")) {
        now_->fatals.push_back(TextOf(text));
    } else if (HasText(dialog, L"Error", L"ｴﾗｰ")) {
        now_->errors.push_back(TextOf(text));
    } else {
        return false;
    }
    Command(dialog, IDOK);
    return true;
}

// The read-only box of the first page is changed; a shortcut's sheet is taken on its second page.
void RefusedLife::TakeSheet(HWND sheet) {
    if (step_ == LifeStep::Shortcut) SendMessageW(sheet, PSM_SETCURSEL, 1, 0);
    if (step_ == LifeStep::Properties) SendMessageW(ControlOf(sheet, CHECK_READ_ONLY), BM_CLICK, 0, 0);
    now_->isSheetTaken = true;
    Command(sheet, IDOK);
}

// Types the new name into an edit that has only just opened, and gives up one that stays.
bool RefusedLife::EndsEdit() {
    const HWND list = program_.Child(WC_LISTVIEWW);
    const HWND edit = list != nullptr ? FindWindowExW(list, nullptr, WC_EDITW, nullptr) : nullptr;
    if (edit == nullptr) return false;
    const auto [known, isNew] = answered_.try_emplace(edit, GetTickCount64());
    if (isNew) {
        now_->isRenamed = true;
        const wchar_t* const name = step_ == LifeStep::FailedRename ? ToDelete : NewName;
        SendMessageW(edit, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(name));
        PostMessageW(edit, WM_KEYDOWN, VK_RETURN, 0);
    } else if (GetTickCount64() - known->second > Patience) {
        PostMessageW(edit, WM_KEYDOWN, VK_ESCAPE, 0);
    }
    return true;
}

bool RefusedLife::ClosesMenu() {
    if (FindWindowW(L"#32768", nullptr) == nullptr) return false;
    PressKey(VK_ESCAPE);
    static_cast<void>(HoldsWithin(300, [] { return FindWindowW(L"#32768", nullptr) == nullptr; }));
    return true;
}
