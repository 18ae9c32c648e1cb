#include "conditions/size_page.h"

#include <cwchar>

#include "base/program_context.h"
#include "framework/combo_box.h"
#include "framework/page_fit.h"
#include "resources/resource_ids.h"

namespace {

constexpr WORD LargestKilobytes = 32767;

}  // namespace

SizePage::SizePage(WindowObject* parentObject, const FileTypeList* types)
    : ConditionPage(parentObject, TemplateProperties(InLanguage(L"Size_E", L"Size_J"))), fileTypes_(types) {}

void SizePage::SetUpControls() {
    for (const wchar_t* entry : {L"", InLanguage(L"Min", L"最低"), InLanguage(L"Max", L"最高")})
        ComboBox(Item(COMBO_FILE_SIZE)).Append(entry);
    Spin(Item(SPIN_KILOBYTES)).SetRange(MAKELPARAM(LargestKilobytes, 0));
    FillFileTypes();
    Reset();
}

// The number fields are wide enough as they are.
void SizePage::LayOut() {
    WidenToRightEdge(Handle(), COMBO_FILE_TYPE);
}

void SizePage::FillFileTypes() {
    const ComboBox types(Item(COMBO_FILE_TYPE));
    const auto insert = [types](int index, const wchar_t* text, const wchar_t* extensions) {
        types.Insert(index, text);
        types.SetData(index, extensions);
    };
    insert(0, InLanguage(L"All files and folders", L"すべてのﾌｧｲﾙとﾌｫﾙﾀﾞ"), L".*");
    const int count = fileTypes_ != nullptr ? fileTypes_->Count() : 0;
    for (int i = 0; i < count; ++i)
        insert(i + 1, fileTypes_->Description(i), fileTypes_->Extensions(i));
    types.Select(0);
}

void SizePage::Reset() {
    ComboBox(Item(COMBO_FILE_TYPE)).Select(0);
    ComboBox(Item(COMBO_FILE_SIZE)).Select(0);
    SetWindowTextW(Item(EDIT_KILOBYTES), L"");
    // QUIRK: size-reset-asks-the-edit. Not the spin, so it changes nothing and the edit stays empty.
    Spin(Item(EDIT_KILOBYTES)).SetPosition(0);
}

void SizePage::FillQuery(SearchQuery& query) const {
    const ComboBox types(Item(COMBO_FILE_TYPE));
    const int type = types.Selected();
    query.typeFilter = type != 0;
    query.extensions[0] = L'\0';
    // A combo box that could not be created answers 0 to every message.
    const auto* extensions = type != CB_ERR ? static_cast<const wchar_t*>(types.Data(type)) : nullptr;
    if (extensions != nullptr) {
        std::wcsncpy(query.extensions, extensions, MAX_PATH - 1);
        query.extensions[MAX_PATH - 1] = L'\0';
    }
    query.sizeBound =
        SizeBoundOf(ComboBox(Item(COMBO_FILE_SIZE)).Selected(), Spin(Item(SPIN_KILOBYTES)).Position());
}
