#pragma once

// The decisions of the operations as tables: what stands, what is asked and answered, what stands then.

#include <string>
#include <vector>

#include "tests/fileops/operation_test.h"

// When the engine asks.
enum class Asks { Never, OnePerFile, WithYesToAll };

constexpr Asks Never = Asks::Never;
constexpr Asks One = Asks::OnePerFile;
constexpr Asks Many = Asks::WithYesToAll;

// The questions by their titles and the number of their answers; literals, for rows to join.
#define FILE_ALL "Confirm File Replace/4"
#define FILE_ONE "Confirm File Replace/2"
#define FOLDER "Confirm Folder Replace/4"
#define DELETE_ALL "Confirm File Delete/4"
#define DELETE_ONE "Confirm File Delete/2"
#define DELETE_FOLDER "Confirm Folder Delete/4"

constexpr int Yes = IDYES;
constexpr int All = 20;
constexpr int No = IDNO;
constexpr int Cancel = IDCANCEL;

struct OperationRow {
    const char* name;
    const char* before;   // see AddContents; a file with the text "old" is a day older than any other
    const char* sources;  // parted by blanks
    const char* destination;
    Asks asks;
    std::vector<int> answers;
    const char* boxes;  // see MetBox
    const char* after;
};

// A row, and the operation that it is of.
struct OperationCase {
    FileOperationKind kind;
    const OperationRow* row;
};

void PrintTo(const OperationCase& operationCase, std::ostream* out);
[[nodiscard]] std::string CaseName(const testing::TestParamInfo<OperationCase>& info);

template <std::size_t count>
std::vector<OperationCase> CasesOf(FileOperationKind kind, const OperationRow (&rows)[count]) {
    std::vector<OperationCase> cases;
    for (const OperationRow& row : rows)
        cases.push_back({kind, &row});
    return cases;
}

// Its one test runs the row and looks at everything that it says; the tables only give it their rows.
class OperationTable : public OperationTest, public testing::WithParamInterface<OperationCase> {};
