// Every answer to every question of one run, the others being Yes.

#include "tests/fileops/operation_table.h"

namespace {

#define FILES "Confirm File Replace/4"
#define FOLDERS "Confirm Folder Replace/4"
#define DELETES "Confirm File Delete/4"

constexpr Asks Many = Asks::WithYesToAll;

// Each of the three is asked about in turn.
#define SOURCES "s/a s/m s/b"
#define BEFORE "s/a=1 s/m/f=2 s/b=3 d/a=old d/m/ d/b=old"
#define ALL_THREE FILES "; " FOLDERS "; " FILES

const OperationRow CopyRows[] = {
    {"all_yes",
     BEFORE,
     SOURCES,
     "d",
     Many,
     {Yes, Yes, Yes},
     ALL_THREE,
     "s/a=1 s/m/f=2 s/b=3 d/a=1 d/m/f=2 d/b=3"},
    {"first_all",
     BEFORE,
     SOURCES,
     "d",
     Many,
     {All, Yes},
     FILES "; " FOLDERS,
     "s/a=1 s/m/f=2 s/b=3 d/a=1 d/m/f=2 d/b=3"},
    {"first_no",
     BEFORE,
     SOURCES,
     "d",
     Many,
     {No, Yes, Yes},
     ALL_THREE,
     "s/a=1 s/m/f=2 s/b=3 d/a=old d/m/f=2 d/b=3"},
    {"first_cancel", BEFORE, SOURCES, "d", Many, {Cancel}, FILES, BEFORE},
    {"second_all",
     BEFORE,
     SOURCES,
     "d",
     Many,
     {Yes, All},
     FILES "; " FOLDERS,
     "s/a=1 s/m/f=2 s/b=3 d/a=1 d/m/f=2 d/b=3"},
    {"second_no",
     BEFORE,
     SOURCES,
     "d",
     Many,
     {Yes, No, Yes},
     ALL_THREE,
     "s/a=1 s/m/f=2 s/b=3 d/a=1 d/m/ d/b=3"},
    {"second_cancel",
     BEFORE,
     SOURCES,
     "d",
     Many,
     {Yes, Cancel},
     FILES "; " FOLDERS,
     "s/a=1 s/m/f=2 s/b=3 d/a=1 d/m/ d/b=old"},
    {"third_all",
     BEFORE,
     SOURCES,
     "d",
     Many,
     {Yes, Yes, All},
     ALL_THREE,
     "s/a=1 s/m/f=2 s/b=3 d/a=1 d/m/f=2 d/b=3"},
    {"third_no",
     BEFORE,
     SOURCES,
     "d",
     Many,
     {Yes, Yes, No},
     ALL_THREE,
     "s/a=1 s/m/f=2 s/b=3 d/a=1 d/m/f=2 d/b=old"},
    {"third_cancel",
     BEFORE,
     SOURCES,
     "d",
     Many,
     {Yes, Yes, Cancel},
     ALL_THREE,
     "s/a=1 s/m/f=2 s/b=3 d/a=1 d/m/f=2 d/b=old"},
};

const OperationRow MoveRows[] = {
    {"all_yes", BEFORE, SOURCES, "d", Many, {Yes, Yes, Yes}, ALL_THREE, "s/ d/a=1 d/m/f=2 d/b=3"},
    // Nothing is asked about b any more, and so nothing makes room for it.
    {"first_all",
     BEFORE,
     SOURCES,
     "d",
     Many,
     {All, Yes},
     FILES "; " FOLDERS "; Error: Error Move file 183",
     "s/b=3 d/a=1 d/m/f=2 d/b=old"},
    {"first_no", BEFORE, SOURCES, "d", Many, {No, Yes, Yes}, ALL_THREE, "s/a=1 d/a=old d/m/f=2 d/b=3"},
    {"first_cancel", BEFORE, SOURCES, "d", Many, {Cancel}, FILES, BEFORE},
    {"second_all",
     BEFORE,
     SOURCES,
     "d",
     Many,
     {Yes, All},
     FILES "; " FOLDERS "; Error: Error Move file 183",
     "s/b=3 d/a=1 d/m/f=2 d/b=old"},
    {"second_no", BEFORE, SOURCES, "d", Many, {Yes, No, Yes}, ALL_THREE, "s/m/f=2 d/a=1 d/m/ d/b=3"},
    {"second_cancel",
     BEFORE,
     SOURCES,
     "d",
     Many,
     {Yes, Cancel},
     FILES "; " FOLDERS,
     "s/m/f=2 s/b=3 d/a=1 d/m/ d/b=old"},
    {"third_all", BEFORE, SOURCES, "d", Many, {Yes, Yes, All}, ALL_THREE, "s/ d/a=1 d/m/f=2 d/b=3"},
    {"third_no", BEFORE, SOURCES, "d", Many, {Yes, Yes, No}, ALL_THREE, "s/b=3 d/a=1 d/m/f=2 d/b=old"},
    {"third_cancel",
     BEFORE,
     SOURCES,
     "d",
     Many,
     {Yes, Yes, Cancel},
     ALL_THREE,
     "s/b=3 d/a=1 d/m/f=2 d/b=old"},
};

#define ALL_DELETES DELETES "; " DELETES "; " DELETES

const OperationRow DeleteRows[] = {
    {"all_yes", "s/a=1 s/m/f=2 s/b=3", SOURCES, "", Many, {Yes, Yes, Yes}, ALL_DELETES, "s/"},
    {"first_all", "s/a=1 s/m/f=2 s/b=3", SOURCES, "", Many, {All}, DELETES, "s/"},
    {"first_no", "s/a=1 s/m/f=2 s/b=3", SOURCES, "", Many, {No, Yes, Yes}, ALL_DELETES, "s/a=1"},
    {"first_cancel", "s/a=1 s/m/f=2 s/b=3", SOURCES, "", Many, {Cancel}, DELETES, "s/a=1 s/m/f=2 s/b=3"},
    {"second_all", "s/a=1 s/m/f=2 s/b=3", SOURCES, "", Many, {Yes, All}, DELETES "; " DELETES, "s/"},
    {"second_no",
     "s/a=1 s/m/f=2 s/b=3",
     SOURCES,
     "",
     Many,
     {Yes, No},
     DELETES "; " DELETES "; Error: Folder not empty",
     "s/m/f=2 s/b=3"},
    {"second_cancel",
     "s/a=1 s/m/f=2 s/b=3",
     SOURCES,
     "",
     Many,
     {Yes, Cancel},
     DELETES "; " DELETES,
     "s/m/f=2 s/b=3"},
    {"third_all", "s/a=1 s/m/f=2 s/b=3", SOURCES, "", Many, {Yes, Yes, All}, ALL_DELETES, "s/"},
    {"third_no", "s/a=1 s/m/f=2 s/b=3", SOURCES, "", Many, {Yes, Yes, No}, ALL_DELETES, "s/b=3"},
    {"third_cancel", "s/a=1 s/m/f=2 s/b=3", SOURCES, "", Many, {Yes, Yes, Cancel}, ALL_DELETES, "s/b=3"},
};

}  // namespace

class CopyAnswers : public OperationTable {};
class MoveAnswers : public OperationTable {};
class DeleteAnswers : public OperationTable {};

TEST_P(CopyAnswers, are_followed) {
    ExpectRow(FileOperationKind::Copy);
}

TEST_P(MoveAnswers, are_followed) {
    ExpectRow(FileOperationKind::Move);
}

TEST_P(DeleteAnswers, are_followed) {
    ExpectRow(FileOperationKind::Delete);
}

INSTANTIATE_TEST_SUITE_P(Rows, CopyAnswers, testing::ValuesIn(CopyRows), RowName);
INSTANTIATE_TEST_SUITE_P(Rows, MoveAnswers, testing::ValuesIn(MoveRows), RowName);
INSTANTIATE_TEST_SUITE_P(Rows, DeleteAnswers, testing::ValuesIn(DeleteRows), RowName);
