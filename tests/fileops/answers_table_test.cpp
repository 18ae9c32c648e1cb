// Every answer to every question of one run that brings files somewhere, the others being Yes.

#include "tests/fileops/operation_table.h"

namespace {

// Each of the three is asked about in turn.
#define SOURCES "s/a s/m s/b"
#define BEFORE "s/a=1 s/m/f=2 s/b=3 d/a=old d/m/ d/b=old"
#define ALL_THREE FILE_ALL "; " FOLDER "; " FILE_ALL

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
     FILE_ALL "; " FOLDER,
     "s/a=1 s/m/f=2 s/b=3 d/a=1 d/m/f=2 d/b=3"},
    {"first_no",
     BEFORE,
     SOURCES,
     "d",
     Many,
     {No, Yes, Yes},
     ALL_THREE,
     "s/a=1 s/m/f=2 s/b=3 d/a=old d/m/f=2 d/b=3"},
    {"first_cancel", BEFORE, SOURCES, "d", Many, {Cancel}, FILE_ALL, BEFORE},
    {"second_all",
     BEFORE,
     SOURCES,
     "d",
     Many,
     {Yes, All},
     FILE_ALL "; " FOLDER,
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
     FILE_ALL "; " FOLDER,
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
     FILE_ALL "; " FOLDER "; Error: Error Move file 183",
     "s/b=3 d/a=1 d/m/f=2 d/b=old"},
    {"first_no", BEFORE, SOURCES, "d", Many, {No, Yes, Yes}, ALL_THREE, "s/a=1 d/a=old d/m/f=2 d/b=3"},
    {"first_cancel", BEFORE, SOURCES, "d", Many, {Cancel}, FILE_ALL, BEFORE},
    {"second_all",
     BEFORE,
     SOURCES,
     "d",
     Many,
     {Yes, All},
     FILE_ALL "; " FOLDER "; Error: Error Move file 183",
     "s/b=3 d/a=1 d/m/f=2 d/b=old"},
    {"second_no", BEFORE, SOURCES, "d", Many, {Yes, No, Yes}, ALL_THREE, "s/m/f=2 d/a=1 d/m/ d/b=3"},
    {"second_cancel",
     BEFORE,
     SOURCES,
     "d",
     Many,
     {Yes, Cancel},
     FILE_ALL "; " FOLDER,
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

// An update asks about files alone: each of the three is newer.
#define UPDATES "s/a s/m s/b"
#define BEFORE_UPDATE "s/a=new s/m/f=new s/b=new d/a=old d/f=old d/b=old"
#define SOURCES_STAY "s/a=new s/m/f=new s/b=new "
#define THREE_FILES FILE_ALL "; " FILE_ALL "; " FILE_ALL

const OperationRow UpdateRows[] = {
    {"all_yes",
     BEFORE_UPDATE,
     UPDATES,
     "d",
     Many,
     {Yes, Yes, Yes},
     THREE_FILES,
     SOURCES_STAY "d/a=new d/f=new d/b=new"},
    {"first_all", BEFORE_UPDATE, UPDATES, "d", Many, {All}, FILE_ALL, SOURCES_STAY "d/a=new d/f=new d/b=new"},
    {"first_no",
     BEFORE_UPDATE,
     UPDATES,
     "d",
     Many,
     {No, Yes, Yes},
     THREE_FILES,
     SOURCES_STAY "d/a=old d/f=new d/b=new"},
    {"first_cancel", BEFORE_UPDATE, UPDATES, "d", Many, {Cancel}, FILE_ALL, BEFORE_UPDATE},
    {"second_all",
     BEFORE_UPDATE,
     UPDATES,
     "d",
     Many,
     {Yes, All},
     FILE_ALL "; " FILE_ALL,
     SOURCES_STAY "d/a=new d/f=new d/b=new"},
    {"second_no",
     BEFORE_UPDATE,
     UPDATES,
     "d",
     Many,
     {Yes, No, Yes},
     THREE_FILES,
     SOURCES_STAY "d/a=new d/f=old d/b=new"},
    {"second_cancel",
     BEFORE_UPDATE,
     UPDATES,
     "d",
     Many,
     {Yes, Cancel},
     FILE_ALL "; " FILE_ALL,
     SOURCES_STAY "d/a=new d/f=old d/b=old"},
    {"third_all",
     BEFORE_UPDATE,
     UPDATES,
     "d",
     Many,
     {Yes, Yes, All},
     THREE_FILES,
     SOURCES_STAY "d/a=new d/f=new d/b=new"},
    {"third_no",
     BEFORE_UPDATE,
     UPDATES,
     "d",
     Many,
     {Yes, Yes, No},
     THREE_FILES,
     SOURCES_STAY "d/a=new d/f=new d/b=old"},
    {"third_cancel",
     BEFORE_UPDATE,
     UPDATES,
     "d",
     Many,
     {Yes, Yes, Cancel},
     THREE_FILES,
     SOURCES_STAY "d/a=new d/f=new d/b=old"},
};

}  // namespace

class CopyAnswers : public OperationTable {};
class MoveAnswers : public OperationTable {};
class UpdateAnswers : public OperationTable {};

TEST_P(CopyAnswers, are_followed) {
    ExpectRow(FileOperationKind::Copy);
}

TEST_P(MoveAnswers, are_followed) {
    ExpectRow(FileOperationKind::Move);
}

TEST_P(UpdateAnswers, are_followed) {
    ExpectRow(FileOperationKind::Update);
}

INSTANTIATE_TEST_SUITE_P(Rows, CopyAnswers, testing::ValuesIn(CopyRows), RowName);
INSTANTIATE_TEST_SUITE_P(Rows, MoveAnswers, testing::ValuesIn(MoveRows), RowName);
INSTANTIATE_TEST_SUITE_P(Rows, UpdateAnswers, testing::ValuesIn(UpdateRows), RowName);
