#include "tests/fileops/operation_table.h"

#include <algorithm>
#include <iterator>
#include <sstream>

namespace {

std::vector<std::string> Words(const char* line) {
    std::istringstream words(line);
    return {std::istream_iterator<std::string>(words), {}};
}

}  // namespace

void PrintTo(const OperationCase& operationCase, std::ostream* out) {
    *out << operationCase.row->name;
}

std::string CaseName(const testing::TestParamInfo<OperationCase>& info) {
    return info.param.row->name;
}

TEST_P(OperationTable, is_kept) {
    const OperationRow& row = *GetParam().row;
    AddContents(tree_, row.before);
    for (const std::string& entry : Words(row.before)) {
        const std::size_t equals = entry.find('=');
        if (equals == std::string::npos) continue;
        const WORD day = entry.substr(equals) == "=old" ? 1 : 2;
        SetLastWriteTime(PathIn(tree_, entry.substr(0, equals)), {2003, 1, 0, day, 12, 0, 0, 0});
    }
    operation_.confirm = row.asks != Asks::Never;
    operation_.multiple = row.asks == Asks::WithYesToAll;
    Prepare(GetParam().kind, Words(row.sources), row.destination);

    std::vector<int> answers = row.answers;
    answers.push_back(IDOK);
    EXPECT_EQ(Run(answers), row.boxes);
    EXPECT_EQ(Contents(), InOrder(row.after));
    const bool saidAll = std::find(answers.begin(), answers.end(), All) != answers.end();
    EXPECT_EQ(operation_.confirm, row.asks != Asks::Never && !saidAll);
}
