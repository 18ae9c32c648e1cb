#include "conditions/history_combo.h"

#include "framework/property_set.h"

namespace {

constexpr int DefaultMaximum = 9;

}  // namespace

HistoryCombo::HistoryCombo(WindowObject* parentObject, HWND existing, const PropertySet& properties)
    : ComboBoxControl(parentObject, existing),
      maximum_(static_cast<int>(properties.Get(property::MaximumEntries, DefaultMaximum))),
      refuseEmpty_(properties.Has(property::RefuseEmpty)) {
    if (properties.Has(property::TabNotification)) TurnOnTabNotification();
}

bool HistoryCombo::AddToHistory(const wchar_t* text) {
    if (refuseEmpty_ && text[0] == L'\0') return false;
    const ComboBox box = Box();
    // QUIRK: history-forgets-by-beginning. An entry that begins with the text goes: adding \Data removes
    // \Data\Old. QUIRK: top-entry-is-looked-at-last. The search starts behind entry 0.
    const int older = box.Find(0, text);
    if (older != CB_ERR) box.Delete(older);
    // QUIRK: maximum-of-9-keeps-10. The entry at this index is removed, and only a list of more than nine has
    // one.
    if (box.Count() + 1 >= maximum_) box.Delete(maximum_);
    box.Insert(0, text);
    box.Select(0);
    return true;
}
