#include "conditions/history_combo.h"

#include "framework/property_set.h"

namespace {

constexpr int DefaultMaximum = 9;

int MaximumOf(const PropertySet& properties) {
    PropertyValue maximum = 0;
    return properties.Lookup(property::MaximumEntries, maximum) ? static_cast<int>(maximum) : DefaultMaximum;
}

}  // namespace

HistoryCombo::HistoryCombo(WindowObject* parentObject, HWND existing, const PropertySet& properties)
    : ComboBoxControl(parentObject, existing),
      maximum_(MaximumOf(properties)),
      refuseEmpty_(properties.Has(property::RefuseEmpty)) {
    if (properties.Has(property::TabNotification)) TurnOnTabNotification();
}

bool HistoryCombo::AddToHistory(const wchar_t* text) {
    if (refuseEmpty_ && text[0] == L'\0') return false;
    const auto textParameter = reinterpret_cast<LPARAM>(text);
    // QUIRK: history-forgets-by-beginning. An entry that begins with the text goes: adding \Data removes
    // \Data\Old. QUIRK: top-entry-is-looked-at-last. The search starts behind entry 0.
    const int older = ce::FindComboEntry(Handle(), 0, text);
    if (older != CB_ERR) SendMessageW(Handle(), CB_DELETESTRING, static_cast<WPARAM>(older), 0);
    // QUIRK: maximum-of-9-keeps-10. The entry at this index is removed, and only a list of more than nine has
    // one.
    if (SendMessageW(Handle(), CB_GETCOUNT, 0, 0) + 1 >= maximum_) {
        SendMessageW(Handle(), CB_DELETESTRING, static_cast<WPARAM>(maximum_), 0);
    }
    SendMessageW(Handle(), CB_INSERTSTRING, 0, textParameter);
    SendMessageW(Handle(), CB_SETCURSEL, 0, 0);
    return true;
}
