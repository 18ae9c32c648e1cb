#include "tests/fileops/operation_table.h"

namespace {

#define FILE_ALL "Confirm File Replace/4"
#define FILE_ONE "Confirm File Replace/2"

constexpr Asks Never = Asks::Never;
constexpr Asks One = Asks::OnePerFile;
constexpr Asks Many = Asks::WithYesToAll;

// The source s/z comes last and shows whether the run went on.
const OperationRow UpdateRows[] = {
    {"newer_file_yes",
     "s/a=new s/z=Z d/a=old",
     "s/a s/z",
     "d",
     Many,
     {Yes},
     FILE_ALL,
     "s/a=new s/z=Z d/a=new d/z=Z"},
    {"newer_file_all",
     "s/a=new s/b=new d/a=old d/b=old",
     "s/a s/b",
     "d",
     Many,
     {All},
     FILE_ALL,
     "s/a=new s/b=new d/a=new d/b=new"},
    {"newer_file_no",
     "s/a=new s/z=Z d/a=old",
     "s/a s/z",
     "d",
     Many,
     {No},
     FILE_ALL,
     "s/a=new s/z=Z d/a=old d/z=Z"},
    {"newer_file_cancel",
     "s/a=new s/z=Z d/a=old",
     "s/a s/z",
     "d",
     Many,
     {Cancel},
     FILE_ALL,
     "s/a=new s/z=Z d/a=old"},
    {"newer_file_single",
     "s/a=new s/z=Z d/a=old",
     "s/a s/z",
     "d",
     One,
     {Yes},
     FILE_ONE,
     "s/a=new s/z=Z d/a=new d/z=Z"},
    {"newer_file_unasked",
     "s/a=new s/z=Z d/a=old",
     "s/a s/z",
     "d",
     Never,
     {},
     "",
     "s/a=new s/z=Z d/a=new d/z=Z"},
    {"newer_file_onto_a_file", "s/a=new d/b=old", "s/a", "d/b", Never, {}, "", "s/a=new d/b=new"},
    {"older_file", "s/a=old s/z=Z d/a=kept", "s/a s/z", "d", Many, {}, "", "s/a=old s/z=Z d/a=kept d/z=Z"},
    {"file_as_old", "s/a=same s/z=Z d/a=kept", "s/a s/z", "d", Many, {}, "", "s/a=same s/z=Z d/a=kept d/z=Z"},
    {"older_file_unasked", "s/a=old d/a=kept", "s/a", "d", Never, {}, "", "s/a=old d/a=kept"},
    {"file_that_is_not_there_yet", "s/a=old d/", "s/a", "d", Many, {}, "", "s/a=old d/a=old"},
    {"missing_source", "s/z=Z d/", "s/a s/z", "d", Many, {}, "", "s/z=Z d/"},

    {"folder_is_merged_into_the_destination",
     "s/m/f=new s/z=Z d/",
     "s/m s/z",
     "d",
     Many,
     {},
     "",
     "s/m/f=new s/z=Z d/f=new d/z=Z"},
    {"folder_that_stands_is_not_asked_about",
     "s/m/n/f=new d/n/f=old",
     "s/m",
     "d",
     Many,
     {Yes},
     FILE_ALL,
     "s/m/n/f=new d/n/f=new"},
    {"folder_into_a_missing_folder", "s/m/f=new d/", "s/m", "d/x/y", Many, {}, "", "s/m/f=new d/x/y/f=new"},
    {"folder_with_older_and_newer_files",
     "s/m/a=new s/m/b=old d/a=old d/b=kept",
     "s/m",
     "d",
     Never,
     {},
     "",
     "s/m/a=new s/m/b=old d/a=new d/b=kept"},
    {"empty_folder", "s/m/ s/z=Z d/", "s/m s/z", "d", Many, {}, "", "s/m/ s/z=Z d/z=Z"},
    {"file_for_a_destination_folder",
     "s/m/f=new s/z=Z d=file",
     "s/m s/z",
     "d",
     Many,
     {},
     "",
     "s/m/f=new s/z=Z d=file"},
    {"file_where_a_folder_within_belongs",
     "s/m/n/f=new s/z=Z d/n=file",
     "s/m s/z",
     "d",
     Many,
     {},
     "",
     "s/m/n/f=new s/z=Z d/n=file"},
    {"nothing_to_update", "d/", "", "d", Many, {}, "", "d/"},
};

}  // namespace

class UpdateTable : public OperationTable {};

TEST_P(UpdateTable, is_kept) {
    ExpectRow(FileOperationKind::Update);
}

INSTANTIATE_TEST_SUITE_P(Rows, UpdateTable, testing::ValuesIn(UpdateRows), RowName);
