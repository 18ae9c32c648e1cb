#include "tests/conditions/page_test.h"

PageTest::PageTest() {
    INITCOMMONCONTROLSEX classes = {sizeof classes,
                                    ICC_STANDARD_CLASSES | ICC_UPDOWN_CLASS | ICC_DATE_CLASSES};
    InitCommonControlsEx(&classes);
    SetWindowSubclass(host_.Handle(), &CountFinds, 1, reinterpret_cast<DWORD_PTR>(this));
}

PageTest::~PageTest() {
    RemoveWindowSubclass(host_.Handle(), &CountFinds, 1);
}

LRESULT CALLBACK PageTest::CountFinds(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                      DWORD_PTR test) {
    if (message == WM_COMMAND && wParam == COMMAND_FIND && lParam == 0)
        ++reinterpret_cast<PageTest*>(test)->finds_;
    return DefSubclassProc(window, message, wParam, lParam);
}

void PageTest::Open(ConditionPage& page) {
    page.MarkAsPage();
    page.CreateModeless();
    pageWindow_ = page.Handle();
    page.Show();
    SetFocus(host_.Handle());
}

int PageTest::FindCommands() {
    PumpQueue();
    return finds_;
}

std::wstring PageTest::TextOf(int id) const {
    wchar_t text[512] = L"";
    GetWindowTextW(Item(id), text, 512);
    return text;
}

std::vector<std::wstring> PageTest::EntriesOf(int comboId) const {
    std::vector<std::wstring> entries;
    const auto count = static_cast<WPARAM>(Send(comboId, CB_GETCOUNT));
    for (WPARAM i = 0; i < count; ++i) {
        std::wstring text(static_cast<std::size_t>(Send(comboId, CB_GETLBTEXTLEN, i)), L'\0');
        Send(comboId, CB_GETLBTEXT, i, reinterpret_cast<LPARAM>(text.data()));
        entries.push_back(text);
    }
    return entries;
}

SearchQuery PageTest::QueryOf(const ConditionPage& page) {
    SearchQuery query;
    for (wchar_t* const text : {query.location, query.name, query.extensions, query.content})
        std::wcscpy(text, L"before");
    page.FillQuery(query);
    return query;
}
