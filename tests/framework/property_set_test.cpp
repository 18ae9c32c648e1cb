#include "framework/property_set.h"

#include <gtest/gtest.h>

namespace {

TEST(PropertySet, starts_empty) {
    const PropertySet properties;
    EXPECT_EQ(properties.Count(), 0);
    EXPECT_FALSE(properties.Has(property::Style));
    EXPECT_EQ(properties.Get(property::Style), 0U);
}

TEST(PropertySet, set_twice_keeps_the_second_value_in_one_pair) {
    PropertySet properties;
    properties.Set(1011, 10);
    properties.Set(1011, 20);
    EXPECT_EQ(properties.Get(1011), 20U);
    EXPECT_EQ(properties.Count(), 1);
}

TEST(PropertySet, setting_a_style_twice_ors_both_values) {
    for (const PropertyKey key : {1115U, 1032U}) {
        PropertySet properties;
        properties.Set(key, 0x10000000);
        properties.Set(key, 0x02000001);
        EXPECT_EQ(properties.Get(key), 0x12000001U) << key;
        EXPECT_EQ(properties.Count(), 1) << key;
    }
}

TEST(PropertySet, adding_after_a_set_keeps_the_first_value) {
    PropertySet properties;
    properties.Set(1011, 10);
    properties.Add(1011, 20);
    EXPECT_EQ(properties.Get(1011), 10U);
    EXPECT_EQ(properties.Count(), 2) << "the added pair is appended all the same";
}

TEST(PropertySet, adding_a_style_ors_into_what_was_set) {
    for (const PropertyKey key : {1115U, 1032U}) {
        PropertySet properties;
        properties.Set(key, 0x50000000);
        properties.Add(key, 0x00010000);
        EXPECT_EQ(properties.Get(key), 0x50010000U) << key;
        EXPECT_EQ(properties.Count(), 1) << key;
    }
}

TEST(PropertySet, adding_alone_gives_the_value) {
    PropertySet properties;
    properties.Add(1115, 4);
    properties.Add(1046, 7);
    EXPECT_EQ(properties.Get(1115), 4U);
    EXPECT_EQ(properties.Get(1046), 7U);
}

TEST(PropertySet, set_after_two_added_pairs_changes_the_first) {
    PropertySet properties;
    properties.Add(1046, 1);
    properties.Add(1046, 2);
    properties.Set(1046, 3);
    EXPECT_EQ(properties.Get(1046), 3U);
    EXPECT_EQ(properties.Count(), 2);
}

TEST(PropertySet, a_value_of_0_is_told_from_none) {
    PropertySet properties;
    properties.Set(1110, 0);
    EXPECT_TRUE(properties.Has(1110));
    EXPECT_EQ(properties.Get(1110, 99), 0U);
    EXPECT_FALSE(properties.Has(1117));
    EXPECT_EQ(properties.Get(1117, 99), 99U);
    EXPECT_EQ(properties.Get(1117), 0U);
}

TEST(PropertySet, holds_50_pairs_and_drops_the_51st) {
    PropertySet properties;
    for (PropertyKey key = 1; key <= 50; ++key)
        properties.Set(key, key * 10);
    EXPECT_EQ(properties.Count(), 50);
    properties.Set(51, 510);
    properties.Add(52, 520);
    properties.Set(1115, 1);
    properties.Add(1032, 1);
    EXPECT_EQ(properties.Count(), 50);
    for (const PropertyKey key : {51U, 52U, 1115U, 1032U})
        EXPECT_FALSE(properties.Has(key)) << key;
    EXPECT_EQ(properties.Get(1), 10U);
    EXPECT_EQ(properties.Get(50), 500U);
}

TEST(PropertySet, changes_its_pairs_even_when_full) {
    PropertySet properties;
    properties.Set(1115, 1);
    for (PropertyKey key = 1; key <= 49; ++key)
        properties.Set(key, key);
    properties.Set(49, 4900);
    properties.Set(1115, 2);
    properties.Add(1115, 4);
    EXPECT_EQ(properties.Get(49), 4900U);
    EXPECT_EQ(properties.Get(1115), 7U);
}

TEST(PropertySet, cleared_takes_50_pairs_again) {
    PropertySet properties;
    for (PropertyKey key = 1; key <= 50; ++key)
        properties.Set(key, key);
    properties.Clear();
    EXPECT_EQ(properties.Count(), 0);
    EXPECT_FALSE(properties.Has(1));
    for (PropertyKey key = 101; key <= 150; ++key)
        properties.Set(key, key);
    EXPECT_EQ(properties.Get(150), 150U);
    EXPECT_EQ(properties.Count(), 50);
}

TEST(PropertySet, keeps_an_address_whole) {
    static const wchar_t text[] = L"SysTabControl32";
    PropertySet properties;
    properties.SetText(property::ClassName, text);
    EXPECT_EQ(properties.GetText(property::ClassName), text);
    properties.AddText(property::ClassName, L"other");
    EXPECT_EQ(properties.GetText(property::ClassName), text);
}

}  // namespace
