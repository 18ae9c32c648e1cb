#pragma once

// The list of found files in the lower part of the main window. It is the only store of what was found: the
// full path of a row is rebuilt from its Folder and Name cells.

#include <optional>

#include "framework/list_view.h"
#include "platform/handles.h"
#include "results/file_icon_cache.h"
#include "results/name_edit.h"
#include "results/refresh_pace.h"
#include "results/result_column.h"
#include "results/result_heading.h"
#include "results/type_names.h"
#include "search/search_receivers.h"

class ResultList : public ListView, public MatchSink {
  public:
    ResultList(WindowObject* parent, PropertySet& properties);

    // Loads the icons and type names before the first row, which would otherwise load them.
    void LoadIcons();

    // While a search fills the list it is redrawn only a few times a second: drawing each row costs a
    // thousand times as much as adding it.
    void BeginFilling();
    void EndFilling();

    // MatchSink. A row's parameter is the number of rows before it, which it keeps for good.
    void Clear() override;
    // While rows remain the list takes no input: they are no longer results of any search.
    [[nodiscard]] bool ClearSome() override;
    void AddMatch(const wchar_t* fullPath, const WIN32_FIND_DATAW& entry) override;
    void Refresh() override;

    // The index of the row with this number; -1 if there is none.
    [[nodiscard]] int RowWithNumber(LPARAM number) const;

    // The index of the selected row, whose full path is written. Returns -1 and leaves the path alone if
    // there is none.
    int SelectedPath(wchar_t (&path)[MAX_PATH]) const;

    void SetCell(int row, ResultColumn column, const wchar_t* text);
    void ReadCell(int row, ResultColumn column, wchar_t (&text)[MAX_PATH]) const;

    // Brings the row into view and starts editing its name in place.
    void EditName(int row);
    // Ends an edit as if the focus had left it: its text is accepted, and EndLabelEdit is raised before this
    // returns. Call it before anything that moves, removes or acts on rows, since the control remembers only
    // the index of the row being edited.
    void EndEditing();
    // Call when the user has gone on to something else, such as a menu: a click on the selected name, which
    // would start an edit half a second later, no longer does. Keys in the list and EndEditing imply it.
    void OvertakeClick();
    // The row whose edit began, wherever it is by now; -1 if it is gone. If the list did not report the
    // beginning, the row that it reports now.
    [[nodiscard]] int EditedRow(const NMLVDISPINFOW& edited) const;
    // The name as edited, when the list reports the end of an edit. Returns false if the edit was cancelled.
    [[nodiscard]] bool EditedName(const NMLVDISPINFOW& edited, std::wstring& name) const;

    // LVS_ICON, LVS_SMALLICON or LVS_REPORT.
    void SetView(DWORD view);

  private:
    // Of the last click.
    enum class EditingClick { None, Awaited, Overtaken };

    void SetListFont();
    void InsertColumns();
    LRESULT OnDeletingAll(EventArguments& arguments);
    LRESULT OnColumnClick(EventArguments& arguments);
    LRESULT OnBeginNameEdit(EventArguments& arguments);
    [[nodiscard]] bool MayBeEdited() const;
    LRESULT OnLeftButtonDown(MessageRecord& record);
    LRESULT OnFocusLost(MessageRecord& record);
    LRESULT OnKeyDown(MessageRecord& record);
    bool ScrollByKey(WPARAM key);
    void SortByKey(int column);
    LRESULT OnSystemKey(MessageRecord& record);
    void ShowPending();
    void DeleteLastRows(int rows);

    // The column of the last sort, by its number; a negative one would mean the order of finding.
    // QUIRK: first-click-sorts-z-to-a. An empty list counts as sorted by name, upwards.
    int sortColumn_ = 0;
    bool sortAscending_ = true;
    std::unique_ptr<FileIconCache> iconCache_;  // null before LoadIcons, or without memory for it
    TypeNames typeNames_;
    std::unique_ptr<ResultHeading> heading_;
    std::unique_ptr<NameEdit> nameEdit_;  // of the last editing; null before the first
    std::optional<LPARAM> editedNumber_;  // of the row whose name is being edited
    EditingClick editingClick_ = EditingClick::None;
    bool editingByCommand_ = false;
    UniqueFont font_;
    bool filling_ = false;
    bool rowsPending_ = false;
    bool hasRows_ = false;  // added since the last clear
    RefreshPace pace_;
};
