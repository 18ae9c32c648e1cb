#pragma once

// What can be done with the selected row: each command does nothing when none is selected.

#include "results/result_list.h"

class ResultCommands {
  public:
    // Both outlive this object; the owner's window owns the questions and messages.
    ResultCommands(WindowObject& ownerObject, ResultList& resultList)
        : owner_(ownerObject), list_(resultList) {}

    // Starts the file or what a shortcut points to. A folder, and a shortcut to one, is not opened.
    void Open();
    void AddToStartMenu();
    // Asks first; a row goes only when its file is gone.
    void Delete();
    // Starts the editing of the name in place.
    void BeginRename();
    // The end of that editing: the file is moved to its new name and the cell follows.
    void EndRename(const NMLVDISPINFOW& edited);
    void ShowProperties();

  private:
    WindowObject& owner_;
    ResultList& list_;
};
