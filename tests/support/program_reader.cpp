// The reading half of ProgramDriver.

#include <cwctype>

#include "resources/resource_ids.h"
#include "tests/support/program_driver.h"

namespace {

// Takes a record's fields one after another; a missing field is a broken probe.
class Fields {
  public:
    explicit Fields(const Record& fields) : record_(fields) {}

    std::wstring Text() { return record_.at(next_++); }
    long long Number() { return std::stoll(record_.at(next_++)); }
    int Int() { return static_cast<int>(Number()); }
    UINT Unsigned() { return static_cast<UINT>(Number()); }
    WORD Word() { return static_cast<WORD>(Number()); }
    bool Flag() { return Number() != 0; }
    RECT Rectangle() {
        RECT rectangle = {};
        rectangle.left = Int();
        rectangle.top = Int();
        rectangle.right = Int();
        rectangle.bottom = Int();
        return rectangle;
    }
    [[nodiscard]] bool More() const { return next_ < record_.size(); }

  private:
    const Record& record_;
    std::size_t next_ = 0;
};

// Rows are asked for in pieces, so that a long list fits the section.
constexpr int RowsAtATime = 200;

RowState ToRow(const Record& record) {
    Fields fields(record);
    RowState row;
    row.name = fields.Text();
    row.folder = fields.Text();
    row.size = fields.Text();
    row.type = fields.Text();
    row.modified = fields.Text();
    row.parameter = fields.Number();
    row.state = fields.Unsigned();
    row.image = fields.Int();
    row.label = fields.Rectangle();
    return row;
}

const Record& Only(const std::vector<Record>& records, const char* what) {
    if (records.empty()) throw DriverError(std::string("the program shows no ") + what);
    return records.front();
}

}  // namespace

int ProgramDriver::SearchesBegun() {
    const auto records = link_->Ask(probe::Question::Counters);
    return Fields(Only(records, "counters")).Int();
}

bool ProgramDriver::Searching() {
    const auto records = link_->Ask(probe::Question::Counters);
    Fields fields(Only(records, "counters"));
    const int begun = fields.Int();
    return begun != fields.Int();
}

bool ProgramDriver::InputWaits() {
    return Fields(Only(link_->Ask(probe::Question::InputWaits), "input")).Flag();
}

std::vector<RowState> ProgramDriver::Rows() {
    std::vector<RowState> rows;
    for (;;) {
        const auto records = link_->Ask(probe::Question::Rows, static_cast<int>(rows.size()), RowsAtATime);
        for (const Record& record : records)
            rows.push_back(ToRow(record));
        if (records.size() < RowsAtATime) return rows;
    }
}

std::vector<std::wstring> ProgramDriver::RowPaths() {
    std::vector<std::wstring> paths;
    for (const RowState& row : Rows()) {
        const bool separated = row.folder.empty() || row.folder.back() == L'\\';
        paths.push_back(row.folder + (separated ? L"" : L"\\") + row.name);
    }
    return paths;
}

std::vector<std::wstring> ProgramDriver::RowNames() {
    std::vector<std::wstring> names;
    for (const RowState& row : Rows())
        names.push_back(row.name);
    return names;
}

ListState ProgramDriver::List() {
    const auto records = link_->Ask(probe::Question::List);
    Fields fields(Only(records, "list"));
    ListState list;
    list.count = fields.Int();
    list.selected = fields.Int();
    list.focused = fields.Int();
    list.style = fields.Unsigned();
    list.extendedStyle = fields.Unsigned();
    list.rectangle = fields.Rectangle();
    return list;
}

std::vector<ColumnState> ProgramDriver::Columns() {
    std::vector<ColumnState> columns;
    for (const Record& record : link_->Ask(probe::Question::Columns)) {
        Fields fields(record);
        ColumnState column;
        column.heading = fields.Text();
        column.width = fields.Int();
        column.format = fields.Int();
        column.rectangle = fields.Rectangle();
        columns.push_back(column);
    }
    return columns;
}

std::vector<MenuItemState> ProgramDriver::Menu() {
    std::vector<MenuItemState> items;
    for (const Record& record : link_->Ask(probe::Question::Menu)) {
        Fields fields(record);
        MenuItemState item;
        item.depth = fields.Int();
        item.id = fields.Unsigned();
        item.state = fields.Unsigned();
        item.type = fields.Unsigned();
        item.text = fields.Text();
        item.rectangle = fields.Rectangle();
        items.push_back(item);
    }
    return items;
}

MenuItemState ProgramDriver::MenuItem(UINT id) {
    for (const MenuItemState& item : Menu()) {
        if (item.id == id) return item;
    }
    throw DriverError("no menu has the command " + std::to_string(id));
}

std::vector<ButtonState> ProgramDriver::Bar() {
    std::vector<ButtonState> buttons;
    for (const Record& record : link_->Ask(probe::Question::Bar)) {
        Fields fields(record);
        ButtonState button;
        button.command = fields.Int();
        button.image = fields.Int();
        button.state = fields.Int();
        button.style = fields.Int();
        button.text = fields.Text();
        button.rectangle = fields.Rectangle();
        buttons.push_back(button);
    }
    return buttons;
}

std::vector<TabState> ProgramDriver::Tabs() {
    std::vector<TabState> tabs;
    for (const Record& record : link_->Ask(probe::Question::Tabs)) {
        Fields fields(record);
        TabState tab;
        tab.caption = fields.Text();
        tab.current = fields.Flag();
        tab.rectangle = fields.Rectangle();
        tabs.push_back(tab);
    }
    return tabs;
}

int ProgramDriver::CurrentPage() {
    const std::vector<TabState> tabs = Tabs();
    for (std::size_t index = 0; index < tabs.size(); ++index) {
        if (tabs[index].current) return static_cast<int>(index);
    }
    return -1;
}

ControlState ProgramDriver::Control(int page, int id) {
    ControlState control;
    const auto records = link_->Ask(probe::Question::Control, page, id);
    if (records.empty()) return control;
    Fields fields(records.front());
    control.exists = true;
    control.className = fields.Text();
    control.text = fields.Text();
    control.enabled = fields.Flag();
    control.visible = fields.Flag();
    control.checked = fields.Int();
    control.style = fields.Unsigned();
    control.textLimit = fields.Int();
    control.rectangle = fields.Rectangle();
    return control;
}

ComboState ProgramDriver::Combo(int page, int id) {
    const auto records = link_->Ask(probe::Question::Combo, page, id);
    ComboState combo;
    combo.selected = Fields(Only(records, "combo box")).Int();
    for (std::size_t entry = 1; entry < records.size(); ++entry)
        combo.entries.push_back(records[entry].at(0));
    return combo;
}

PickerState ProgramDriver::Picker(int page, int id) {
    const auto records = link_->Ask(probe::Question::Picker, page, id);
    Fields fields(Only(records, "date picker"));
    PickerState picker;
    picker.text = fields.Text();
    picker.time.wYear = fields.Word();
    picker.time.wMonth = fields.Word();
    picker.time.wDay = fields.Word();
    picker.time.wHour = fields.Word();
    picker.time.wMinute = fields.Word();
    picker.time.wSecond = fields.Word();
    return picker;
}

SpinState ProgramDriver::Spin(int page, int id) {
    const auto records = link_->Ask(probe::Question::Spin, page, id);
    Fields fields(Only(records, "spin"));
    SpinState spin;
    spin.lower = fields.Int();
    spin.upper = fields.Int();
    spin.position = fields.Int();
    spin.errorWord = fields.Int();
    return spin;
}

std::vector<TreeItemState> ProgramDriver::Tree() {
    std::vector<TreeItemState> items;
    for (const Record& record : link_->Ask(probe::Question::Tree)) {
        Fields fields(record);
        TreeItemState item;
        item.depth = fields.Int();
        item.state = fields.Unsigned();
        item.image = fields.Int();
        item.selectedImage = fields.Int();
        item.text = fields.Text();
        items.push_back(item);
    }
    return items;
}

std::vector<DialogState> ProgramDriver::Dialogs() {
    std::vector<DialogState> dialogs;
    for (const Record& record : link_->Ask(probe::Question::Dialogs)) {
        Fields fields(record);
        DialogState dialog;
        dialog.caption = fields.Text();
        dialog.rectangle = fields.Rectangle();
        while (fields.More()) {
            const int id = fields.Int();
            dialog.controls.emplace_back(id, fields.Text());
        }
        dialogs.push_back(dialog);
    }
    return dialogs;
}

std::optional<DialogState> ProgramDriver::FindingDialog() {
    for (const DialogState& dialog : Dialogs()) {
        for (const auto& [id, text] : dialog.controls) {
            if (id == STATIC_FOLDER) return dialog;
        }
    }
    return std::nullopt;
}

std::wstring ProgramDriver::FocusPath() {
    std::wstring path;
    for (const Record& record : link_->Ask(probe::Question::Focus)) {
        Fields fields(record);
        std::wstring name = fields.Text();
        for (wchar_t& unit : name)
            unit = static_cast<wchar_t>(std::towlower(unit));
        if (!path.empty()) path += L' ';
        path += name + L':' + fields.Text();
    }
    return path;
}

bool ProgramDriver::HasFocus(int page, int id) {
    // Pages share ids, so the control also has to stand on the page that is shown.
    const std::wstring path = L' ' + FocusPath() + L' ';
    return CurrentPage() == page && path.find(L':' + std::to_wstring(id) + L' ') != std::wstring::npos;
}

bool ProgramDriver::TabHasFocus() {
    return FocusPath().rfind(L"systabcontrol32:", 0) == 0;
}

bool ProgramDriver::ListHasFocus() {
    return FocusPath().rfind(L"syslistview32:", 0) == 0;
}
