#include "framework/property_sheet.h"

#include <cwchar>

#include "base/program_context.h"
#include "framework/application.h"
#include "framework/layout.h"

namespace {

// Called when the sheet's window exists: fits it to the screen and centres it on its owner.
int CALLBACK PlaceSheet(HWND sheet, UINT message, LPARAM) {
    if (message != PSCB_INITIALIZED) return 0;
    ce::FitSheetToScreen(sheet);
    CentreOn(sheet, GetWindow(sheet, GW_OWNER));
    return 0;
}

}  // namespace

PropertySheetPage::PropertySheetPage(WindowObject* parentObject, const wchar_t* title,
                                     const PropertySet& properties)
    : Dialog(parentObject, properties), titleText_(title, title + std::wcslen(title) + 1) {}

HPROPSHEETPAGE PropertySheetPage::CreatePage() {
    if (FindTemplate() == nullptr) return nullptr;
    PROPSHEETPAGEW page{};
    page.dwSize = sizeof page;
    page.dwFlags = PSP_USECALLBACK | PSP_USETITLE;
    page.hInstance = Context().instance;
    page.pszTemplate = TemplateName();
    page.pszTitle = titleText_.data();
    page.pfnDlgProc = &PageProcedure;
    page.pfnCallback = &PageCallback;
    page.lParam = reinterpret_cast<LPARAM>(this);
    return CreatePropertySheetPageW(&page);
}

// Allows every page to be created and frees none: the pages belong to the sheet's owner.
UINT CALLBACK PropertySheetPage::PageCallback(HWND, UINT, PROPSHEETPAGEW*) {
    return 1;
}

INT_PTR CALLBACK PropertySheetPage::PageProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (TellsOfCreation(window, message)) {
        const auto* page = reinterpret_cast<const PROPSHEETPAGEW*>(lParam);
        // Without its map entry the page shows its template and changes nothing.
        if (!reinterpret_cast<PropertySheetPage*>(page->lParam)->TakeWindow(window)) return 0;
    }
    const INT_PTR result = DispatchToObject(window, message, wParam, lParam);
    if (message == WM_DESTROY || message == WM_NCDESTROY) WindowIsGone(window);
    return result;
}

// A page has no bar and is not centred.
LRESULT PropertySheetPage::OnInitDialog(MessageRecord& record) {
    CallInitialisation(record);
    SetUpControls();
    return 1;
}

LRESULT PropertySheetPage::OnWmNotify(MessageRecord& record) {
    const auto* header = reinterpret_cast<const NMHDR*>(record.lParam);
    if (header == nullptr || header->code != static_cast<UINT>(PSN_APPLY)) return Dialog::OnWmNotify(record);
    RaiseEvent(event::Apply, 0, record.lParam, record);
    ce::SetDialogResult(Handle(), PSNRET_NOERROR);
    return 1;
}

void PropertySheetDialog::Run() {
    std::vector<HPROPSHEETPAGE> handles;
    for (PropertySheetPage* page : pages_) {
        if (const HPROPSHEETPAGE handle = page->CreatePage()) handles.push_back(handle);
    }
    if (handles.empty()) return;
    PROPSHEETHEADERW header{};
    header.dwSize = sizeof header;
    // Three buttons do not fit a small screen.
    header.dwFlags = PSH_USECALLBACK | PSH_NOCONTEXTHELP | PSH_NOAPPLYNOW;
    header.hwndParent = owner_ != nullptr ? owner_->Handle() : nullptr;
    header.hInstance = Context().instance;
    header.pszCaption = caption_;
    header.nPages = static_cast<UINT>(handles.size());
    header.phpage = handles.data();
    header.pfnCallback = &PlaceSheet;
    PropertySheetW(&header);
}
