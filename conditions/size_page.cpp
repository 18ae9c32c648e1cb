#include "conditions/size_page.h"

#include <cwchar>

#include "base/program_context.h"
#include "framework/page_fit.h"
#include "resources/resource_ids.h"

namespace {

constexpr WORD LargestKilobytes = 32767;

}  // namespace

SizePage::SizePage(WindowObject* parentObject, const FileTypeList* types)
    : ConditionPage(parentObject, TemplateProperties(InLanguage(L"Size_E", L"Size_J"))), fileTypes_(types) {}

void SizePage::SetUpControls() {
    for (const wchar_t* entry : {L"", InLanguage(L"Min", L"最低"), InLanguage(L"Max", L"最高")}) {
        SendToItem(COMBO_FILE_SIZE, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(entry));
    }
    SendToItem(SPIN_KILOBYTES, UDM_SETRANGE, 0, MAKELPARAM(LargestKilobytes, 0));
    FillFileTypes();
    Reset();
}

// The number fields are wide enough as they are.
void SizePage::LayOut() {
    WidenToRightEdge(Handle(), COMBO_FILE_TYPE);
}

void SizePage::FillFileTypes() {
    const auto insert = [this](int index, const wchar_t* text, const wchar_t* extensions) {
        SendToItem(COMBO_FILE_TYPE, CB_INSERTSTRING, static_cast<WPARAM>(index),
                   reinterpret_cast<LPARAM>(text));
        SendToItem(COMBO_FILE_TYPE, CB_SETITEMDATA, static_cast<WPARAM>(index),
                   reinterpret_cast<LPARAM>(extensions));
    };
    insert(0, InLanguage(L"All files and folders", L"すべてのﾌｧｲﾙとﾌｫﾙﾀﾞ"), L".*");
    const int count = fileTypes_ != nullptr ? fileTypes_->Count() : 0;
    for (int i = 0; i < count; ++i)
        insert(i + 1, fileTypes_->Description(i), fileTypes_->Extensions(i));
    SendToItem(COMBO_FILE_TYPE, CB_SETCURSEL, 0);
}

void SizePage::Reset() {
    SendToItem(COMBO_FILE_TYPE, CB_SETCURSEL, 0);
    SendToItem(COMBO_FILE_SIZE, CB_SETCURSEL, 0);
    SetWindowTextW(Item(EDIT_KILOBYTES), L"");
    // QUIRK: size-reset-asks-the-edit. Not the spin, so it changes nothing and the edit stays empty.
    SendToItem(EDIT_KILOBYTES, UDM_SETPOS, 0, 0);
}

void SizePage::FillQuery(SearchQuery& query) const {
    const LRESULT type = SendToItem(COMBO_FILE_TYPE, CB_GETCURSEL);
    query.typeFilter = type != 0;
    const LRESULT extensions = SendToItem(COMBO_FILE_TYPE, CB_GETITEMDATA, static_cast<WPARAM>(type));
    query.extensions[0] = L'\0';
    // A combo box that could not be created answers 0 to every message.
    if (type != CB_ERR && extensions != CB_ERR && extensions != 0) {
        std::wcsncpy(query.extensions, reinterpret_cast<const wchar_t*>(extensions), MAX_PATH - 1);
        query.extensions[MAX_PATH - 1] = L'\0';
    }

    const auto size = static_cast<int>(SendToItem(COMBO_FILE_SIZE, CB_GETCURSEL));
    query.sizeBound = SizeBoundOf(size, ce::SpinPosition(Item(SPIN_KILOBYTES)));
}
