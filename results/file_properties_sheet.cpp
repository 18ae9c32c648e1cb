#include "results/file_properties_sheet.h"

#include "results/shortcut_target.h"

FilePropertiesSheet::FilePropertiesSheet(WindowObject* ownerObject, const wchar_t* captionText)
    : PropertySheetDialog(ownerObject, captionText),
      owner_(ownerObject),
      generalPage_(std::make_unique<GeneralPage>(ownerObject)) {
    AddPage(*generalPage_);
}

void FilePropertiesSheet::SetPath(const wchar_t* path) {
    generalPage_->SetPath(path);
    if (shortcutPage_ != nullptr) {
        RemovePage(ShortcutPageIndex);
        shortcutPage_.reset();
    }
    if (!IsShortcut(path)) return;
    shortcutPage_ = std::make_unique<ShortcutPage>(owner_);
    shortcutPage_->SetPath(path);
    AddPage(*shortcutPage_);
}

bool FilePropertiesSheet::HasChanged() const {
    return generalPage_->HasChanged() || (shortcutPage_ != nullptr && shortcutPage_->HasChanged());
}
