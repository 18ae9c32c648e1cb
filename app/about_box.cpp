#include "app/about_box.h"

#include <cwchar>
#include <utility>

#include "app/memory_lines.h"
#include "app/uninstall.h"
#include "base/program_context.h"
#include "framework/control.h"
#include "framework/dialog_fit.h"
#include "framework/layout.h"
#include "framework/message_boxes.h"
#include "framework/property_set.h"
#include "resources/resource_ids.h"

namespace {

constexpr int StringCapacity = 260;
constexpr int TitleHeight = -12;
constexpr int MostPixelsSmaller = 3;

struct StringPlace {
    UINT string;
    int control;
};

constexpr StringPlace StringPlaces[] = {
    {STRING_PRODUCT_NAME, STATIC_PRODUCT_NAME}, {STRING_VERSION, STATIC_VERSION},
    {STRING_LEGAL_NOTICE, STATIC_LEGAL_NOTICE}, {STRING_CONTACT_1, STATIC_CONTACT_1},
    {STRING_CONTACT_2, STATIC_CONTACT_2},
};

HFONT CreateTitleFont() {
    LOGFONTW font{};
    font.lfHeight = TitleHeight;
    font.lfWeight = FW_BOLD;
    font.lfCharSet = DEFAULT_CHARSET;
    // The template's own font: a Japanese system would pick one without a bold face.
    std::wcscpy(font.lfFaceName, L"Tahoma");
    return CreateFontIndirectW(&font);
}

// The control's font, one pixel lower.
HFONT CreateSmallerFont(HWND control) {
    LOGFONTW font{};
    if (GetObjectW(FontOf(control), sizeof font, &font) == 0) return nullptr;
    font.lfHeight += font.lfHeight < 0 ? 1 : -1;
    return CreateFontIndirectW(&font);
}

bool ShowsWholeMemoryLines(HWND about) {
    for (int id = STATIC_PROGRAM_MEMORY; id <= STATIC_SECOND_STORAGE_CARD; ++id) {
        if (!ShowsWholeText(about, id)) return false;
    }
    return true;
}

}  // namespace

AboutBox::AboutBox(WindowObject* parentObject)
    : Dialog(parentObject, TemplateProperties(InLanguage(L"EAboutDialog_E", L"EAboutDialog_J"))),
      titleFont_(CreateTitleFont()) {
    OnMessage(WM_SETFOCUS, this, &AboutBox::OnWmSetFocus);
    OnCommand(IDOK, this, &AboutBox::OnOk);
    OnCommand(BUTTON_UNINSTALL, this, &AboutBox::OnUninstall);
}

void AboutBox::SetRegistryKeys(const wchar_t* maker, const wchar_t* product) {
    makerKey_ = maker;
    productKey_ = product;
}

LRESULT AboutBox::OnInitDialog(MessageRecord& record) {
    ShowStrings();
    if (productKey_.empty()) ShowWindow(DialogItem(*this, BUTTON_UNINSTALL), SW_HIDE);
    SetFont(DialogItem(*this, STATIC_PRODUCT_NAME), titleFont_.Get());
    ShowMemory();
    KeepTitleLineFree(Handle());
    FitToScreen(Handle(), STATIC_CONTACT_2);
    Dialog::OnInitDialog(record);
    Centre();
    SetFocus(Handle());
    return FALSE;
}

// The box itself keeps the focus. The system would give it to the template's only button, and a stray Enter
// or Space would then remove the settings.
LRESULT AboutBox::OnWmSetFocus(MessageRecord&) {
    return TRUE;
}

// A string that cannot be loaded leaves the template's text.
void AboutBox::ShowStrings() {
    for (const StringPlace& place : StringPlaces) {
        wchar_t text[StringCapacity];
        if (LoadStringW(Context().instance, place.string, text, StringCapacity) > 0) {
            SetDlgItemTextW(Handle(), place.control, text);
        }
    }
}

void AboutBox::ShowMemory() {
    wchar_t line[MemoryLineCapacity];
    if (ProgramMemoryLine(line)) SetDlgItemTextW(Handle(), STATIC_PROGRAM_MEMORY, line);
    if (DataStoreLine(line)) SetDlgItemTextW(Handle(), STATIC_DATA_STORE, line);
    for (int card = 0; card < ListedStorageCards; ++card) {
        if (StorageCardLine(card, line)) SetDlgItemTextW(Handle(), STATIC_STORAGE_CARD + card, line);
    }
    for (int id = STATIC_PROGRAM_MEMORY; id <= STATIC_SECOND_STORAGE_CARD; ++id)
        WidenToText(Handle(), id);
    ShrinkMemoryLines();
}

// Large figures can be wider than the box: the lines' font then shrinks by a pixel until they fit.
void AboutBox::ShrinkMemoryLines() {
    for (int step = 0; step < MostPixelsSmaller && !ShowsWholeMemoryLines(Handle()); ++step) {
        UniqueFont smaller(CreateSmallerFont(DialogItem(*this, STATIC_PROGRAM_MEMORY)));
        if (!smaller) return;
        for (int id = STATIC_PROGRAM_MEMORY; id <= STATIC_SECOND_STORAGE_CARD; ++id)
            SetFont(DialogItem(*this, id), smaller.Get());
        smallFont_ = std::move(smaller);
    }
}

LRESULT AboutBox::OnOk(EventArguments&) {
    End(ResultOk);
    return 0;
}

// Runs when the owner has bound no routine of its own. Unlike the main window's, it asks first.
// QUIRK: about-box-closes-its-owner-anyway. Whether or not the keys could be removed.
LRESULT AboutBox::OnUninstall(EventArguments&) {
    if (productKey_.empty()) return 0;
    if (AskConfirmation(Handle(), InLanguage(L"Uninstall this program.", L"ｱﾝｲﾝｽﾄｰﾙを実行します")) != IDOK)
        return 0;
    if (DeleteRegistryKey(HKEY_CURRENT_USER, productKey_.c_str()) == ERROR_SUCCESS && !makerKey_.empty() &&
        !HasSubKey(HKEY_CURRENT_USER, makerKey_.c_str())) {
        DeleteRegistryKey(HKEY_CURRENT_USER, makerKey_.c_str());
    }
    PostMessageW(ParentHandle(), WM_CLOSE, 0, 0);
    return 0;
}
