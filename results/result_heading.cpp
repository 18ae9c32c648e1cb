#include "results/result_heading.h"

#include <windowsx.h>

ResultHeading::ResultHeading(WindowObject* list, HWND heading)
    : Control(list, heading, L"SysHeader32", Ownership::Wrapped) {
    Subclass();
    OnMessage(WM_LBUTTONDBLCLK, this, &ResultHeading::OnDoubleClick);
}

// Between two columns a double click fits the width to the cells, and stays what it is.
LRESULT ResultHeading::OnDoubleClick(MessageRecord& record) {
    HDHITTESTINFO hit{};
    hit.pt = {GET_X_LPARAM(record.lParam), GET_Y_LPARAM(record.lParam)};
    SendMessageW(Handle(), HDM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
    if (hit.flags == HHT_ONHEADER) record.message = WM_LBUTTONDOWN;
    return DefaultProcessing(record);
}
