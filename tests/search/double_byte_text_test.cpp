#include "search/double_byte_text.h"

#include <gtest/gtest.h>

#include <string>

namespace {

std::string UpperCased(std::string bytes, bool doubleByteAware) {
    UpperCaseBytes(bytes.data(), doubleByteAware);
    return bytes;
}

}  // namespace

TEST(LeadByte, it_is_0x81_to_0x9f_or_0xe0_to_0xfd) {
    for (int byte = 0; byte < 256; ++byte) {
        const bool expected = (byte >= 129 && byte <= 159) || (byte >= 224 && byte <= 253);
        EXPECT_EQ(IsLeadByte(static_cast<unsigned char>(byte)), expected) << byte;
    }
}

TEST(LeadByte, the_byte_0xfd_counts_as_one_and_0xfe_does_not) {
    EXPECT_TRUE(IsLeadByte(0xFD));
    EXPECT_FALSE(IsLeadByte(0xFE));
    EXPECT_FALSE(IsLeadByte(0x80));
    EXPECT_FALSE(IsLeadByte(0xA0));
    EXPECT_FALSE(IsLeadByte(0xDF));
}

TEST(UpperCaseByte, only_a_to_z_change) {
    for (int byte = 0; byte < 256; ++byte) {
        const int expected = byte >= 97 && byte <= 122 ? byte - 32 : byte;
        EXPECT_EQ(UpperCaseByte(static_cast<unsigned char>(byte)), expected) << byte;
    }
}

TEST(UpperCaseBytes, letters_become_upper_case_and_nothing_else_changes) {
    EXPECT_EQ(UpperCased("aBc-1z{`", false), "ABC-1Z{`");
    EXPECT_EQ(UpperCased("", false), "");
    EXPECT_EQ(UpperCased("\xE9\xC9", false), "\xE9\xC9");
}

TEST(UpperCaseBytes, a_double_byte_character_stays_where_lead_bytes_are_known) {
    EXPECT_EQ(UpperCased("n\x83qz", true), "N\x83qZ");
    EXPECT_EQ(UpperCased("\xFDqz", true), "\xFDqZ");
}

TEST(UpperCaseBytes, without_lead_bytes_a_trail_byte_is_folded_too) {
    EXPECT_EQ(UpperCased("n\x83qz", false), "N\x83QZ");
}

TEST(UpperCaseBytes, a_trail_byte_that_looks_like_a_lead_byte_starts_no_character) {
    EXPECT_EQ(UpperCased("\x81\x81z", true), "\x81\x81Z");
}

TEST(UpperCaseBytes, a_lead_byte_at_the_end_ends_the_walk) {
    // The letters behind the NUL are no part of the text.
    char bytes[] = "a\x81\0abc";
    UpperCaseBytes(bytes, true);
    EXPECT_EQ(std::string(bytes, sizeof(bytes)), std::string("A\x81\0abc\0", 7));
}
