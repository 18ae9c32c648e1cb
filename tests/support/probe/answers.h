#pragma once

// The answers to the driver's questions, one function a question; each runs on the program's own thread.

#include "tests/support/probe/answer_writer.h"

namespace probe {

// The list of results.
void AnswerList(AnswerWriter& writer);
void AnswerRows(AnswerWriter& writer, int first, int count);
void AnswerColumns(AnswerWriter& writer);
void SelectRow(int row, bool select);

// The bars: menu, tool bar, tabs.
void AnswerMenu(AnswerWriter& writer);
void AnswerBar(AnswerWriter& writer);
void AnswerTabs(AnswerWriter& writer);

// The controls of the pages and of the search's dialog.
void AnswerControl(AnswerWriter& writer, int page, int id);
void AnswerCombo(AnswerWriter& writer, int page, int id);
void AnswerPicker(AnswerWriter& writer, int page, int id);
void AnswerSpin(AnswerWriter& writer, int page, int id);
void SetPicker(int page, int id, int yearMonthDay);

// The tree of the folder browser.
void AnswerTree(AnswerWriter& writer);
void SelectTreeItem(int place);

// Windows at large.
void AnswerFocus(AnswerWriter& writer);
void AnswerDialogs(AnswerWriter& writer);
void FocusControl(int page, int id);
void Repaint();

}  // namespace probe
