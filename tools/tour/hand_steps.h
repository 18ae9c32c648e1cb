#pragma once

// Steps of the tour that a person does with pointer and keys. Each returns when what it opens can be seen,
// and throws DriverError when that does not come.

#include <string>

#include "tests/support/program_driver.h"

// The drop-down of the menu bar with this number, counted from 1.
void OpenMenu(ProgramDriver& driver, int number);

// A click on a control of a page.
void ClickControl(ProgramDriver& driver, int page, int id);

// The list of a combo box, or the calendar of a date picker.
void OpenDropDown(ProgramDriver& driver, int page, int id);

// Closes the menu or list that is open.
void PressEscape();
void PressEnter();

// Selects the row of this file.
void SelectRowOf(ProgramDriver& driver, const std::wstring& name);

// Begins to rename the selected row and types the text, up to the Enter.
void TypeNewName(ProgramDriver& driver, const std::wstring& name);

// Waits for a dialog or message box that takes input; with an id for one that has such a control.
void AwaitDialog(ProgramDriver& driver, int id = 0);

// Turns the open sheet to the page with this number, which has this control.
void TurnSheet(ProgramDriver& driver, int page, int id);
