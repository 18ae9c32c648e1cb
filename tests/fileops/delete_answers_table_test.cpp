// Every answer to every question of one run that deletes, the others being Yes.

#include "tests/fileops/operation_table.h"

namespace {

// An exclusion asks about the folder, whose No ends the run, and then about each file in it.
#define BEFORE_EXCLUSION "s/ d/m/f=1 d/m/g=2 d/k=kept"

const OperationRow ExcludeRows[] = {
    {"all_yes",
     BEFORE_EXCLUSION,
     "s",
     "d",
     Many,
     {Yes, Yes, Yes},
     DELETE_FOLDER "; " DELETE_ALL "; " DELETE_ALL,
     "s/ d/k=kept"},
    {"first_all", BEFORE_EXCLUSION, "s", "d", Many, {All}, DELETE_FOLDER, "s/ d/k=kept"},
    {"first_no", BEFORE_EXCLUSION, "s", "d", Many, {No}, DELETE_FOLDER, BEFORE_EXCLUSION},
    {"first_cancel", BEFORE_EXCLUSION, "s", "d", Many, {Cancel}, DELETE_FOLDER, BEFORE_EXCLUSION},
    {"second_all",
     BEFORE_EXCLUSION,
     "s",
     "d",
     Many,
     {Yes, All},
     DELETE_FOLDER "; " DELETE_ALL,
     "s/ d/k=kept"},
    {"second_no",
     BEFORE_EXCLUSION,
     "s",
     "d",
     Many,
     {Yes, No, Yes},
     DELETE_FOLDER "; " DELETE_ALL "; " DELETE_ALL "; Error: Folder not empty",
     "s/ d/m/f=1 d/k=kept"},
    {"second_cancel",
     BEFORE_EXCLUSION,
     "s",
     "d",
     Many,
     {Yes, Cancel},
     DELETE_FOLDER "; " DELETE_ALL,
     BEFORE_EXCLUSION},
    {"third_all",
     BEFORE_EXCLUSION,
     "s",
     "d",
     Many,
     {Yes, Yes, All},
     DELETE_FOLDER "; " DELETE_ALL "; " DELETE_ALL,
     "s/ d/k=kept"},
    {"third_no",
     BEFORE_EXCLUSION,
     "s",
     "d",
     Many,
     {Yes, Yes, No},
     DELETE_FOLDER "; " DELETE_ALL "; " DELETE_ALL "; Error: Folder not empty",
     "s/ d/m/g=2 d/k=kept"},
    {"third_cancel",
     BEFORE_EXCLUSION,
     "s",
     "d",
     Many,
     {Yes, Yes, Cancel},
     DELETE_FOLDER "; " DELETE_ALL "; " DELETE_ALL,
     "s/ d/m/g=2 d/k=kept"},
};

#define ALL_DELETES DELETE_ALL "; " DELETE_ALL "; " DELETE_ALL

const OperationRow DeleteRows[] = {
    {"all_yes", "s/a=1 s/m/f=2 s/b=3", "s/a s/m s/b", "", Many, {Yes, Yes, Yes}, ALL_DELETES, "s/"},
    {"first_all", "s/a=1 s/m/f=2 s/b=3", "s/a s/m s/b", "", Many, {All}, DELETE_ALL, "s/"},
    {"first_no", "s/a=1 s/m/f=2 s/b=3", "s/a s/m s/b", "", Many, {No, Yes, Yes}, ALL_DELETES, "s/a=1"},
    {"first_cancel",
     "s/a=1 s/m/f=2 s/b=3",
     "s/a s/m s/b",
     "",
     Many,
     {Cancel},
     DELETE_ALL,
     "s/a=1 s/m/f=2 s/b=3"},
    {"second_all",
     "s/a=1 s/m/f=2 s/b=3",
     "s/a s/m s/b",
     "",
     Many,
     {Yes, All},
     DELETE_ALL "; " DELETE_ALL,
     "s/"},
    {"second_no",
     "s/a=1 s/m/f=2 s/b=3",
     "s/a s/m s/b",
     "",
     Many,
     {Yes, No},
     DELETE_ALL "; " DELETE_ALL "; Error: Folder not empty",
     "s/m/f=2 s/b=3"},
    {"second_cancel",
     "s/a=1 s/m/f=2 s/b=3",
     "s/a s/m s/b",
     "",
     Many,
     {Yes, Cancel},
     DELETE_ALL "; " DELETE_ALL,
     "s/m/f=2 s/b=3"},
    {"third_all", "s/a=1 s/m/f=2 s/b=3", "s/a s/m s/b", "", Many, {Yes, Yes, All}, ALL_DELETES, "s/"},
    {"third_no", "s/a=1 s/m/f=2 s/b=3", "s/a s/m s/b", "", Many, {Yes, Yes, No}, ALL_DELETES, "s/b=3"},
    {"third_cancel",
     "s/a=1 s/m/f=2 s/b=3",
     "s/a s/m s/b",
     "",
     Many,
     {Yes, Yes, Cancel},
     ALL_DELETES,
     "s/b=3"},
};

}  // namespace

class ExcludeAnswers : public OperationTable {};
class DeleteAnswers : public OperationTable {};

TEST_P(ExcludeAnswers, are_followed) {
    ExpectRow(FileOperationKind::Exclude);
}

TEST_P(DeleteAnswers, are_followed) {
    ExpectRow(FileOperationKind::Delete);
}

INSTANTIATE_TEST_SUITE_P(Rows, ExcludeAnswers, testing::ValuesIn(ExcludeRows), RowName);
INSTANTIATE_TEST_SUITE_P(Rows, DeleteAnswers, testing::ValuesIn(DeleteRows), RowName);
