// Runs every target over its corpus: what the fuzzer once found worth keeping, without the fuzzer.

#include <gtest/gtest.h>
#include <sanitizer/common_interface_defs.h>

#include <cstdio>
#include <fstream>

#include "fuzz/fuzz_targets.h"

namespace {

// The input at work, for a sanitizer that ends the program.
std::string inputAtWork;

void TellInputAtWork() {
    std::fprintf(stderr, "the input was %s\n", inputAtWork.c_str());
}

// An input stands in a line of its own, two digits a byte.
std::vector<std::uint8_t> BytesOf(const std::string& line) {
    std::vector<std::uint8_t> bytes;
    for (std::size_t at = 0; at + 1 < line.size(); at += 2)
        bytes.push_back(static_cast<std::uint8_t>(std::stoul(line.substr(at, 2), nullptr, 16)));
    return bytes;
}

class FuzzCorpus : public testing::TestWithParam<FuzzTarget> {
  protected:
    FuzzCorpus() { __sanitizer_set_death_callback(TellInputAtWork); }
    ~FuzzCorpus() override { __sanitizer_set_death_callback(nullptr); }

    static void Run(const std::string& line) {
        inputAtWork = line;
        const std::vector<std::uint8_t> bytes = BytesOf(line);
        FuzzInput input(bytes.data(), bytes.size());
        try {
            GetParam().run(input);
        } catch (const Finding& finding) {
            ADD_FAILURE() << finding.what() << ", with the input " << line;
        }
    }
};

}  // namespace

TEST_P(FuzzCorpus, breaks_no_rule) {
    std::ifstream corpus(std::string(QUORIN_FUZZ_CORPUS "/") + GetParam().name + ".txt");
    ASSERT_TRUE(corpus.is_open());
    int count = 0;
    for (std::string line; std::getline(corpus, line); ++count)
        Run(line);
    EXPECT_GT(count, 0);
}

INSTANTIATE_TEST_SUITE_P(Of, FuzzCorpus, testing::ValuesIn(FuzzTargets),
                         [](const auto& target) { return std::string(target.param.name); });
