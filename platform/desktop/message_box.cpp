// The system's message box, kept on the screen.

#include <algorithm>
#include <iterator>
#include <vector>

#include "platform/ce_windows.h"
#include "platform/desktop/system_handles.h"
#include "platform/desktop/window_placement.h"

namespace ce {

namespace {

constexpr LONG Margin = 6;
constexpr LONG SmallestLetters = 8;
constexpr int LongestText = 2048;

using ce::SizeOf;

SIZE SizeOf(HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    return SizeOf(place);
}

void Place(HWND window, LONG left, LONG top, SIZE size) {
    SetWindowPos(window, nullptr, left, top, size.cx, size.cy, SWP_NOZORDER | SWP_NOACTIVATE);
}

// Only while the call runs, and only the one box.
class BoxFit {
  public:
    BoxFit()
        : outer_(current), hook_(SetWindowsHookExW(WH_CALLWNDPROCRET, Watch, nullptr, GetCurrentThreadId())) {
        current = this;
    }
    ~BoxFit() { current = outer_; }
    BoxFit(const BoxFit&) = delete;
    BoxFit& operator=(const BoxFit&) = delete;

  private:
    static LRESULT CALLBACK Watch(int code, WPARAM wParam, LPARAM lParam);

    void Fit(HWND window);
    void FindControls();
    SIZE TextSize(LONG width) const;
    SIZE FitText(SIZE room);
    bool MakeLettersSmaller();
    void PlaceButtons(LONG width, LONG top) const;

    static BoxFit* current;

    BoxFit* outer_;
    UniqueHook hook_;
    UniqueFont font_;
    HWND box_ = nullptr;
    HWND icon_ = nullptr;
    HWND text_ = nullptr;
    std::vector<HWND> buttons_;
};

BoxFit* BoxFit::current = nullptr;

bool IsDialog(HWND window) {
    wchar_t name[8] = L"";
    return ce::GetClassNameW(window, name, 8) > 0 && lstrcmpW(name, L"Dialog") == 0;
}

// The first dialog that has been initialised is the box: the system has laid it out and not yet shown it.
LRESULT CALLBACK BoxFit::Watch(int code, WPARAM wParam, LPARAM lParam) {
    const auto* message = reinterpret_cast<const CWPRETSTRUCT*>(lParam);
    const bool initialised =
        code == HC_ACTION && message->message == WM_INITDIALOG && IsDialog(message->hwnd);
    if (initialised && current != nullptr && current->box_ == nullptr) current->Fit(message->hwnd);
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

void BoxFit::FindControls() {
    for (HWND control = GetWindow(box_, GW_CHILD); control != nullptr;
         control = GetWindow(control, GW_HWNDNEXT)) {
        const LONG_PTR style = GetWindowLongPtrW(control, GWL_STYLE);
        wchar_t name[16] = L"";
        ce::GetClassNameW(control, name, static_cast<int>(std::size(name)));
        if ((style & WS_VISIBLE) == 0) continue;
        if (lstrcmpiW(name, L"Button") == 0) buttons_.push_back(control);
        if (lstrcmpiW(name, L"Static") != 0) continue;
        ((style & SS_TYPEMASK) == SS_ICON ? icon_ : text_) = control;
    }
}

SIZE BoxFit::TextSize(LONG width) const {
    wchar_t words[LongestText] = L"";
    const int length = GetWindowTextW(text_, words, LongestText);
    const WindowContext context(text_);
    const SelectedObject font(context.Get(),
                              reinterpret_cast<HGDIOBJ>(SendMessageW(text_, WM_GETFONT, 0, 0)));
    RECT area{0, 0, width, 0};
    DrawTextW(context.Get(), words, length, &area,
              DT_CALCRECT | DT_NOPREFIX | DT_WORDBREAK | DT_EDITCONTROL | DT_EXPANDTABS);
    return {area.right, area.bottom};
}

bool BoxFit::MakeLettersSmaller() {
    LOGFONTW letters{};
    if (GetObjectW(reinterpret_cast<HFONT>(SendMessageW(text_, WM_GETFONT, 0, 0)), sizeof letters,
                   &letters) == 0)
        return false;
    if (letters.lfHeight >= 0) letters.lfHeight = -letters.lfHeight;
    if (++letters.lfHeight > -SmallestLetters) return false;
    return ReplaceFont(text_, WM_SETFONT, letters, font_);
}

SIZE BoxFit::FitText(SIZE room) {
    SIZE size = TextSize(room.cx);
    while (size.cy > room.cy && MakeLettersSmaller())
        size = TextSize(room.cx);
    return {std::min(size.cx, room.cx), std::min(size.cy, room.cy)};
}

void BoxFit::PlaceButtons(LONG width, LONG top) const {
    LONG all = Margin * (static_cast<LONG>(buttons_.size()) - 1);
    for (const HWND button : buttons_)
        all += SizeOf(button).cx;
    LONG left = (width - all) / 2;
    for (const HWND button : buttons_) {
        Place(button, left, top, SizeOf(button));
        left += SizeOf(button).cx + Margin;
    }
}

void BoxFit::Fit(HWND window) {
    box_ = window;
    FindControls();
    RECT place{};
    RECT client{};
    RECT inside{};
    const RECT area = ScreenArea();
    GetWindowRect(box_, &place);
    GetClientRect(box_, &client);
    IntersectRect(&inside, &place, &area);
    if (EqualRect(&inside, &place) || text_ == nullptr || buttons_.empty()) return;

    const SIZE frame = {SizeOf(place).cx - client.right, SizeOf(place).cy - client.bottom};
    const SIZE room = {SizeOf(area).cx - frame.cx, SizeOf(area).cy - frame.cy};
    const SIZE iconSize = icon_ != nullptr ? SizeOf(icon_) : SIZE{0, 0};
    const LONG textLeft = icon_ != nullptr ? iconSize.cx + 2 * Margin : Margin;
    const LONG buttonHeight = SizeOf(buttons_.front()).cy;
    SetWindowLongPtrW(text_, GWL_STYLE, GetWindowLongPtrW(text_, GWL_STYLE) | SS_EDITCONTROL);
    const SIZE textSize = FitText({room.cx - textLeft - Margin, room.cy - buttonHeight - 3 * Margin});

    const LONG rowHeight = std::max(textSize.cy, iconSize.cy);
    if (icon_ != nullptr) Place(icon_, Margin, Margin, iconSize);
    Place(text_, textLeft, Margin, {room.cx - textLeft - Margin, textSize.cy});
    PlaceButtons(room.cx, rowHeight + 2 * Margin);
    const SIZE size = {SizeOf(area).cx, rowHeight + buttonHeight + 3 * Margin + frame.cy};
    Place(box_, area.left, area.top + (SizeOf(area).cy - size.cy) / 2, size);
}

}  // namespace

int MessageBoxW(HWND owner, const wchar_t* text, const wchar_t* title, UINT style) {
    const BoxFit fit;
    return ::MessageBoxW(owner, text, title, style);
}

}  // namespace ce
