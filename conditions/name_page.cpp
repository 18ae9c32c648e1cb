#include "conditions/name_page.h"

#include <cwchar>
#include <iterator>

#include "base/format_text.h"
#include "base/program_context.h"
#include "base/registry_key.h"
#include "conditions/folder_browse_dialog.h"
#include "conditions/search_history.h"
#include "framework/page_fit.h"
#include "framework/property_set.h"
#include "resources/resource_ids.h"

namespace {

constexpr std::size_t ContentLimit = ContentTextSize - 1;

constexpr const wchar_t* SubFolderValue = L"Sub Folder";

// The path of a key below the program's own.
struct SubKeyPath {
    SubKeyPath(const wchar_t* parent, const wchar_t* name) {
        FormatText(text, std::size(text), L"%s\\%s", parent, name);
    }
    wchar_t text[MAX_PATH];
};

}  // namespace

NamePage::NamePage(WindowObject* parentObject, HWND findTarget)
    : ConditionPage(parentObject, TemplateProperties(InLanguage(L"Name_E", L"Name_J"))),
      searchWindow_(findTarget) {}

void NamePage::SetUpControls() {
    PropertySet comboProperties;
    comboProperties.Set(property::TabNotification, 1);

    name_ = std::make_unique<HistoryCombo>(this, Item(COMBO_NAME), comboProperties);
    name_->OnNotification(event::TabKey, this, &NamePage::OnTabInName);
    name_->OnNotification(event::EnterKey, this, &NamePage::OnEnterInCombo, COMBO_NAME);
    name_->AddToHistory(L"*.txt");
    name_->AddToHistory(L"*.log");

    location_ = std::make_unique<HistoryCombo>(this, Item(COMBO_LOCATION), comboProperties);
    location_->OnNotification(event::TabKey, this, &NamePage::OnTabInLocation);
    location_->OnNotification(event::EnterKey, this, &NamePage::OnEnterInCombo, COMBO_LOCATION);

    content_ = std::make_unique<TextField>(this, Item(EDIT_CONTENT));
    content_->LimitText(ContentLimit);
    content_->OnNotification(event::EnterKey, this, &NamePage::OnEnterInContent);

    OnCommand(BUTTON_BROWSE, this, &NamePage::OnBrowse);
}

void NamePage::LayOut() {
    for (const int field : {COMBO_NAME, EDIT_CONTENT, COMBO_LOCATION})
        WidenToRightEdge(Handle(), field);
    MoveToRightEdge(Handle(), BUTTON_BROWSE);
}

void NamePage::Reset() {
    // QUIRK: new-condition-keeps-content
    SetWindowTextW(Item(COMBO_NAME), L"");
    SetWindowTextW(Item(COMBO_LOCATION), L"");
}

void NamePage::LoadSettings(const wchar_t* registryPath) {
    if (Handle() == nullptr) return;
    LoadHistory(*name_, HKEY_CURRENT_USER, SubKeyPath(registryPath, L"Name").text);
    LoadHistory(*location_, HKEY_CURRENT_USER, SubKeyPath(registryPath, L"Location").text);
    DWORD subFolders = 0;
    if (ReadRegistryDword(HKEY_CURRENT_USER, registryPath, SubFolderValue, subFolders) != ERROR_SUCCESS)
        subFolders = 0;
    CheckBox(Item(CHECK_SUBFOLDERS)).Check(subFolders != 0);
}

void NamePage::SaveSettings(const wchar_t* registryPath) const {
    if (Handle() == nullptr) return;
    SaveHistory(*name_, HKEY_CURRENT_USER, SubKeyPath(registryPath, L"Name").text);
    SaveHistory(*location_, HKEY_CURRENT_USER, SubKeyPath(registryPath, L"Location").text);
    WriteRegistryDword(HKEY_CURRENT_USER, registryPath, SubFolderValue, IsChecked(CHECK_SUBFOLDERS) ? 1 : 0);
}

void NamePage::FillQuery(SearchQuery& query) const {
    GetDlgItemTextW(Handle(), COMBO_LOCATION, query.location, MAX_PATH);
    GetDlgItemTextW(Handle(), COMBO_NAME, query.name, MAX_PATH);
    GetDlgItemTextW(Handle(), EDIT_CONTENT, query.content, ContentTextSize);
    query.subFolders = IsChecked(CHECK_SUBFOLDERS);
}

LRESULT NamePage::OnEnterInCombo(EventArguments& arguments) {
    HistoryCombo& combo = arguments.extra == COMBO_NAME ? *name_ : *location_;
    wchar_t text[MAX_PATH] = L"";
    GetWindowTextW(combo.Handle(), text, MAX_PATH);
    // QUIRK: find-button-adds-no-history. Only Enter in a field does.
    combo.AddToHistory(text);
    StartSearch();
    return 0;
}

LRESULT NamePage::OnEnterInContent(EventArguments&) {
    StartSearch();
    return 0;
}

LRESULT NamePage::OnTabInName(EventArguments& arguments) {
    const bool backwards = arguments.argument != 0;
    SetFocus(backwards ? ParentHandle() : Item(EDIT_CONTENT));
    return 0;
}

LRESULT NamePage::OnTabInLocation(EventArguments& arguments) {
    const bool backwards = arguments.argument != 0;
    HWND next = Item(backwards ? EDIT_CONTENT : BUTTON_BROWSE);
    // A disabled button cannot take the focus, so Tab goes to the control after it.
    if (!IsWindowEnabled(next)) next = GetNextDlgTabItem(Handle(), next, FALSE);
    SetFocus(next);
    return 0;
}

LRESULT NamePage::OnBrowse(EventArguments&) {
    FolderBrowseDialog browser(this, InLanguage(L"Select Folder", L"ﾌｫﾙﾀﾞ選択"));
    if (browser.RunModal() != ResultOk || browser.ChosenPath() == nullptr) return 0;
    location_->AddToHistory(browser.ChosenPath());
    SetWindowTextW(location_->Handle(), browser.ChosenPath());
    return 0;
}

void NamePage::StartSearch() {
    PostMessageW(searchWindow_, WM_COMMAND, COMMAND_FIND, 0);
}
