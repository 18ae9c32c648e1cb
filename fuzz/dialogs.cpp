// The fit of dialogs to their texts and the screen, over templates of any kind: the controls stay in their
// order and on the screen, and no letters become smaller than can be read.

#include "framework/dialog_fit.h"
#include "framework/layout.h"
#include "fuzz/fuzz_targets.h"
#include "platform/ce_shell.h"
#include "resources/resource_ids.h"

namespace {

constexpr LONG MenuBar = ce::MenuBarHeight;
constexpr LONG SmallestLetters = 8;
// Above it stand the heading and the title line, which nothing moves.
constexpr LONG FirstRow = 26;
constexpr LONG Rounding = 1;

constexpr LONG Group = BS_GROUPBOX;

HFONT MakeFont(LONG height, LONG weight) {
    const LOGFONTW description = {height, weight};
    return CreateFontIndirectW(&description);
}

// Like those of a resource: two sizes of letters, one of them in two weights, or the system's own.
HFONT SomeFont(FuzzInput& input) {
    static const HFONT fonts[] = {MakeFont(-11, FW_NORMAL), MakeFont(-11, FW_BOLD), MakeFont(-16, FW_NORMAL),
                                  nullptr};
    return input.OneOf(fonts);
}

MadeUpWindow SomeControl(FuzzInput& input, SIZE client) {
    struct Kind {
        const wchar_t* className;
        LONG style;
    };
    static constexpr Kind Kinds[] = {
        {L"Static", 0}, {L"Static", 0},     {L"Static", SS_ICON}, {L"Static", SS_ENDELLIPSIS},
        {L"Button", 0}, {L"Button", Group}, {L"Edit", 0}};
    const Kind kind = input.OneOf(Kinds);
    MadeUpWindow control;
    control.className = kind.className;
    control.style = kind.style;
    control.id = static_cast<int>(input.UpTo(7));
    control.textUnits = static_cast<LONG>(input.UpTo(300));
    control.font = SomeFont(input);
    // Whole in the template's width, and not always in its height.
    control.place.left = static_cast<LONG>(input.UpTo(static_cast<std::size_t>(client.cx - 1)));
    control.place.right =
        control.place.left + 1 +
        static_cast<LONG>(input.UpTo(static_cast<std::size_t>(client.cx - control.place.left - 1)));
    control.place.top = static_cast<LONG>(input.UpTo(static_cast<std::size_t>(client.cy)));
    control.place.bottom = control.place.top + 1 + static_cast<LONG>(input.UpTo(120));
    if (control.id == 7) control.id = STATIC_TITLE;
    return control;
}

MadeUpWindow SomeDialog(FuzzInput& input) {
    static constexpr SIZE Screens[] = {{240, 320}, {640, 240}, {320, 240}, {480, 320}, {201, 203}};
    const SIZE screen = input.OneOf(Screens);
    TheScreen() = {0, 0, screen.cx, screen.cy};
    MadeUpWindow dialog;
    dialog.place.left = static_cast<LONG>(input.UpTo(40));
    dialog.place.right = dialog.place.left + 40 + static_cast<LONG>(input.UpTo(220));
    dialog.place.bottom = 40 + static_cast<LONG>(input.UpTo(400));
    for (std::size_t count = input.UpTo(12); count > 0; --count)
        dialog.children.push_back(SomeControl(input, dialog.ClientSize()));
    return dialog;
}

// Whether both are rows of one column, and the first ended before the second began.
bool IsAbove(const MadeUpWindow& one, const MadeUpWindow& other) {
    return one.place.bottom <= other.place.top && one.place.top >= FirstRow;
}

bool IsGroup(const MadeUpWindow& control) {
    return control.className == L"Button" && control.style == Group;
}

void RequireReadable(const MadeUpWindow& before, const MadeUpWindow& after) {
    for (std::size_t at = 0; at < after.children.size(); ++at) {
        const MadeUpWindow& control = after.children[at];
        Require(LettersOf(control.font) >= std::min(SmallestLetters, LettersOf(before.children[at].font)),
                "letters can be read");
        Require(LettersOf(control.font) <= LettersOf(before.children[at].font), "no letters become larger");
        Require(control.place.bottom >= control.place.top, "no control is turned over");
    }
}

// A row stays below those that it stood below. Groups grow with what they hold.
void RequireOrder(const MadeUpWindow& before, const MadeUpWindow& after) {
    for (std::size_t one = 0; one < before.children.size(); ++one) {
        for (std::size_t other = 0; other < before.children.size(); ++other) {
            if (IsGroup(before.children[one]) || !IsAbove(before.children[one], before.children[other]))
                continue;
            Require(after.children[one].place.bottom <= after.children[other].place.top + Rounding,
                    "a row stays below another");
        }
    }
}

// Whether nothing has moved to the right.
bool HasOneColumn(const MadeUpWindow& before, const MadeUpWindow& after) {
    for (std::size_t at = 0; at < before.children.size(); ++at)
        if (after.children[at].place.left != before.children[at].place.left) return false;
    return true;
}

void Fit(FuzzInput& input) {
    MadeUpWindow dialog = SomeDialog(input);
    const MadeUpWindow before = dialog;
    FitToScreen(dialog.Handle(), static_cast<int>(input.UpTo(8)));
    RequireReadable(before, dialog);
    if (HasOneColumn(before, dialog)) RequireOrder(before, dialog);
    const RECT screen = TheScreen();
    const bool hadRoom = before.place.bottom - before.place.top <= screen.bottom - MenuBar;
    Require(hadRoom || dialog.place.bottom - dialog.place.top <= screen.bottom - MenuBar,
            "the dialog is no higher than the screen with its menu bar");
    for (const MadeUpWindow& control : dialog.children) {
        if (control.place.left >= screen.right) continue;
        Require(control.place.right <= screen.right, "no control ends beyond the screen");
    }
}

// Every text that grows pushes away what stands below it.
void Grow(FuzzInput& input) {
    MadeUpWindow dialog = SomeDialog(input);
    for (std::size_t count = input.UpTo(4); count > 0; --count) {
        const MadeUpWindow before = dialog;
        const int id = static_cast<int>(input.UpTo(7));
        GrowToText(dialog.Handle(), id);
        RequireReadable(before, dialog);
        WidenToText(dialog.Handle(), id);
        (void)ShowsWholeText(dialog.Handle(), id);
        for (std::size_t at = 0; at < before.children.size(); ++at)
            Require(dialog.children[at].place.top >= before.children[at].place.top, "nothing moves up");
    }
    KeepTitleLineFree(dialog.Handle());
}

}  // namespace

void FuzzDialogs(FuzzInput& input) {
    static constexpr decltype(&Fit) Kinds[] = {Fit, Grow};
    input.OneOf(Kinds)(input);
}
