#pragma once

// The list of found files in the lower part of the main window. It is the only store of what was found: the
// full path of a row is rebuilt from its Folder and Name cells.

#include <optional>

#include "framework/control.h"
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
    ~ResultList() override;

    // Makes the icons and the type names ready, which the first row does otherwise: an empty list shows none.
    void LoadIcons();

    // While a search fills the list it is redrawn only a few times a second: drawing each row costs a
    // thousand times as much as adding it.
    void BeginFilling();
    void EndFilling();

    // MatchSink. A row's parameter is the number of rows before it, which it keeps for good.
    void Clear() override;
    // A list with rows left takes no input meanwhile: they are results of no search any more.
    [[nodiscard]] bool ClearSome() override;
    void AddMatch(const wchar_t* fullPath, const WIN32_FIND_DATAW& entry) override;
    void Refresh() override;

    [[nodiscard]] int RowCount() const;
    // The index of the row with this number; -1 when there is none.
    [[nodiscard]] int RowWithNumber(LPARAM number) const;

    // The index of the selected row; -1 when there is none.
    [[nodiscard]] int SelectedRow() const;

    // The same, and its full path is written; -1, with the path left alone, when there is
    // none.
    int SelectedPath(wchar_t (&path)[MAX_PATH]) const;

    void SetCell(int row, ResultColumn column, const wchar_t* text);
    void ReadCell(int row, ResultColumn column, wchar_t (&text)[MAX_PATH]) const;

    // The other rows keep their numbers.
    void DeleteRow(int row);
    void SelectRow(int row);
    [[nodiscard]] int SelectedCount() const;

    // Starts the editing of the row's name in place, which is brought into view first.
    void EditName(int row);
    // Ends an editing as if its edit were left: what stands in it is taken, and EndLabelEdit is raised before
    // this returns. Whatever moves, removes or acts on rows calls it first, for the list keeps no more of an
    // editing than the place of its row.
    void EndEditing();
    // The person goes on to something else, as to a menu: a click on the selected name, which begins an
    // editing half a second later, does so no more. What runs in the list itself or ends an editing implies
    // it.
    void OvertakeClick();
    // The row whose editing began, wherever it is by now; -1 when it is gone. The one that the list reports,
    // when it did not tell of the beginning.
    [[nodiscard]] int EditedRow(const NMLVDISPINFOW& edited) const;
    // What the editing that the list reports as ended has made of the name; false when it was given up.
    [[nodiscard]] bool EditedName(const NMLVDISPINFOW& edited, std::wstring& name) const;

    // LVS_ICON, LVS_SMALLICON or LVS_REPORT.
    void SetView(DWORD view);

  private:
    // Of the last click.
    enum class EditingClick { None, Awaited, Overtaken };

    void UseDialogFont();
    void InsertColumns();
    LRESULT CallControl(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT OnColumnClick(EventArguments& arguments);
    LRESULT OnBeginNameEdit(EventArguments& arguments);
    [[nodiscard]] bool MayBeEdited() const;
    LRESULT OnLeftButtonDown(MessageRecord& record);
    LRESULT OnFocusLost(MessageRecord& record);
    LRESULT OnKeyDown(MessageRecord& record);
    bool ScrollByKey(WPARAM key);
    void SortByKey(int column);
    LRESULT OnSystemKeyDown(MessageRecord& record);
    LRESULT OnSystemCharacter(MessageRecord& record);
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
    HFONT font_ = nullptr;
    bool filling_ = false;
    bool rowsPending_ = false;
    bool hasRows_ = false;  // added since the last clear
    RefreshPace pace_;
};
