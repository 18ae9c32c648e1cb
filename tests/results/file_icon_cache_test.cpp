#include "results/file_icon_cache.h"

#include <gtest/gtest.h>

#include <optional>

#include "tests/results/registered_types.h"
#include "tests/support/replaced_calls.h"
#include "tests/support/test_world.h"

namespace {

struct Question {
    std::wstring path;
    DWORD attributes;
    UINT flags;
    bool operator==(const Question&) const = default;
};

std::vector<Question> asked;

DWORD_PTR AnswerWithIcon(const wchar_t* path, DWORD attributes, SHFILEINFOW* info, UINT, UINT flags) {
    asked.push_back({path, attributes, flags});
    info->hIcon = CopyIcon(LoadIconW(nullptr, IDI_APPLICATION));
    return 1;
}

DWORD_PTR AnswerWithSmallIconsOnly(const wchar_t* path, DWORD attributes, SHFILEINFOW* info, UINT size,
                                   UINT flags) {
    return (flags & SHGFI_SMALLICON) != 0 ? AnswerWithIcon(path, attributes, info, size, flags) : 0;
}

DWORD_PTR AnswerWithLargeIconsOnly(const wchar_t* path, DWORD attributes, SHFILEINFOW* info, UINT size,
                                   UINT flags) {
    return (flags & SHGFI_SMALLICON) == 0 ? AnswerWithIcon(path, attributes, info, size, flags) : 0;
}

constexpr int FirstFetched = 4;
constexpr unsigned AllKinds = FileIconCache::AllKinds;

}  // namespace

class FileIconCacheTest : public testing::Test {
  protected:
    void SetUp() override {
        asked.clear();
        types_.Add(L".qsaa", L"qsnote");
        types_.Add(L".qsab", L"qsnote");
        types_.Add(L".qsac", L"qssheet");
        cache_.emplace();
    }
    int ImageOf(const wchar_t* path, DWORD attributes = FILE_ATTRIBUTE_ARCHIVE, unsigned kinds = AllKinds) {
        return cache_->ImageOf(path, attributes, kinds);
    }

    TestWorld world_;
    RegisteredTypes types_;
    Replaced<decltype(ce::shellCalls.getFileInfo)> shell_{ce::shellCalls.getFileInfo, &AnswerWithIcon};
    std::optional<FileIconCache> cache_;
};

TEST_F(FileIconCacheTest, both_lists_begin_with_the_four_fixed_images_in_their_sizes) {
    EXPECT_EQ(ImageList_GetImageCount(cache_->LargeImages()), 4);
    EXPECT_EQ(ImageList_GetImageCount(cache_->SmallImages()), 4);
    int width = 0;
    int height = 0;
    ImageList_GetIconSize(cache_->LargeImages(), &width, &height);
    EXPECT_EQ(width, 32);
    EXPECT_EQ(height, 32);
    ImageList_GetIconSize(cache_->SmallImages(), &width, &height);
    EXPECT_EQ(width, 16);
    EXPECT_EQ(height, 16);
}

TEST_F(FileIconCacheTest, fixed_icons_that_cannot_be_loaded_leave_their_places_empty) {
    // A module that has none of the program's icons.
    ContextForStartUp().instance = GetModuleHandleW(L"kernel32.dll");
    cache_->Fill();
    EXPECT_EQ(ImageList_GetImageCount(cache_->LargeImages()), 4);
    EXPECT_EQ(ImageList_GetImageCount(cache_->SmallImages()), 4);
    EXPECT_EQ(ImageOf(L"\\f\\a.exe"), FirstFetched);
}

TEST_F(FileIconCacheTest, a_file_with_only_one_of_the_two_icons_leaves_the_lists_in_step) {
    {
        const Replaced smallOnly(ce::shellCalls.getFileInfo, &AnswerWithSmallIconsOnly);
        // There is no place of its own in the large list.
        EXPECT_EQ(ImageOf(L"\\f\\a.exe"), -1);
    }
    EXPECT_EQ(ImageOf(L"\\f\\b.exe"), FirstFetched + 1);
    EXPECT_EQ(ImageList_GetImageCount(cache_->SmallImages()), FirstFetched + 2);
    {
        const Replaced largeOnly(ce::shellCalls.getFileInfo, &AnswerWithLargeIconsOnly);
        EXPECT_EQ(ImageOf(L"\\f\\c.exe"), FirstFetched + 2);
    }
    EXPECT_EQ(ImageOf(L"\\f\\d.exe"), FirstFetched + 3);
    EXPECT_EQ(ImageList_GetImageCount(cache_->LargeImages()), FirstFetched + 4);
    EXPECT_EQ(ImageList_GetImageCount(cache_->SmallImages()), FirstFetched + 4);
}

TEST_F(FileIconCacheTest, a_folder_gets_image_2_without_a_question) {
    EXPECT_EQ(ImageOf(L"\\f", FILE_ATTRIBUTE_DIRECTORY), 2);
    EXPECT_EQ(ImageOf(L"\\f.exe", FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_HIDDEN), 2);
    EXPECT_TRUE(asked.empty());
}

TEST_F(FileIconCacheTest, a_type_is_asked_for_its_two_icons_once) {
    EXPECT_EQ(ImageOf(L"\\f\\a.qsaa"), FirstFetched);
    EXPECT_EQ(ImageOf(L"\\g\\b.QSAA"), FirstFetched);
    EXPECT_EQ(ImageOf(L"\\g\\c.qsab"), FirstFetched);
    constexpr UINT Large = SHGFI_ICON | SHGFI_USEFILEATTRIBUTES;
    EXPECT_EQ(asked,
              (std::vector<Question>{{L"\\f\\a.qsaa", FILE_ATTRIBUTE_ARCHIVE, Large},
                                     {L"\\f\\a.qsaa", FILE_ATTRIBUTE_ARCHIVE, Large | SHGFI_SMALLICON}}));
    EXPECT_EQ(ImageOf(L"\\f\\a.qsac"), FirstFetched + 1);
    EXPECT_EQ(asked.size(), 4U);
}

TEST_F(FileIconCacheTest, a_thousand_files_of_one_type_cost_one_pair_of_questions) {
    for (int i = 0; i < 1000; ++i)
        ASSERT_EQ(ImageOf((L"\\f\\" + std::to_wstring(i) + L".qsaa").c_str()), FirstFetched);
    EXPECT_EQ(asked.size(), 2U);
    EXPECT_EQ(ImageList_GetImageCount(cache_->LargeImages()), 5);
    EXPECT_EQ(ImageList_GetImageCount(cache_->SmallImages()), 5);
}

TEST_F(FileIconCacheTest, each_application_has_its_own_image_fetched_once) {
    EXPECT_EQ(ImageOf(L"\\f\\a.exe"), FirstFetched);
    EXPECT_EQ(ImageOf(L"\\f\\b.EXE"), FirstFetched + 1);
    EXPECT_EQ(ImageOf(L"\\F\\A.exe"), FirstFetched);
    EXPECT_EQ(asked.size(), 4U);
}

TEST_F(FileIconCacheTest, each_icon_file_has_its_own_image_fetched_once) {
    EXPECT_EQ(ImageOf(L"\\f\\a.ico"), FirstFetched);
    EXPECT_EQ(ImageOf(L"\\f\\a.ic2"), FirstFetched + 1);
    EXPECT_EQ(ImageOf(L"\\f\\b.ICO"), FirstFetched + 2);
    EXPECT_EQ(ImageOf(L"\\f\\A.ICO"), FirstFetched);
    EXPECT_EQ(asked.size(), 6U);
}

TEST_F(FileIconCacheTest, a_file_without_a_registered_type_gets_image_0_without_a_question) {
    EXPECT_EQ(ImageOf(L"\\f\\README"), 0);
    EXPECT_EQ(ImageOf(L"\\f\\a.qsunknown"), 0);
    EXPECT_EQ(ImageOf(L""), 0);
    EXPECT_TRUE(asked.empty());
}

TEST_F(FileIconCacheTest, a_path_that_is_nothing_but_a_suffix_is_no_application_and_no_icon_file) {
    EXPECT_EQ(ImageOf(L".exe"), 0);
    EXPECT_EQ(ImageOf(L".EXE", FILE_ATTRIBUTE_ARCHIVE, 0), 0);
    EXPECT_EQ(ImageOf(L"a.exe", FILE_ATTRIBUTE_ARCHIVE, 0), 1);
    EXPECT_TRUE(asked.empty());
}

TEST_F(FileIconCacheTest, a_kind_that_is_not_wanted_gets_its_fallback_unless_it_is_known) {
    EXPECT_EQ(ImageOf(L"\\f\\a.exe", FILE_ATTRIBUTE_ARCHIVE, AllKinds & ~FileIconCache::Applications), 1);
    EXPECT_EQ(ImageOf(L"\\f\\a.ico", FILE_ATTRIBUTE_ARCHIVE, AllKinds & ~FileIconCache::IconFiles), 0);
    EXPECT_EQ(ImageOf(L"\\f\\a.qsaa", FILE_ATTRIBUTE_ARCHIVE, AllKinds & ~FileIconCache::RegisteredTypes), 0);
    EXPECT_TRUE(asked.empty());
    EXPECT_EQ(ImageOf(L"\\f\\a.exe", FILE_ATTRIBUTE_ARCHIVE, FileIconCache::Applications), FirstFetched);
    EXPECT_EQ(ImageOf(L"\\f\\a.exe", FILE_ATTRIBUTE_ARCHIVE, 0), FirstFetched);
}

TEST_F(FileIconCacheTest, a_refill_forgets_every_icon_but_the_fixed_ones) {
    EXPECT_EQ(ImageOf(L"\\f\\a.exe"), FirstFetched);
    EXPECT_EQ(ImageOf(L"\\f\\a.qsaa"), FirstFetched + 1);
    cache_->Fill();
    EXPECT_EQ(ImageList_GetImageCount(cache_->LargeImages()), 4);
    EXPECT_EQ(ImageList_GetImageCount(cache_->SmallImages()), 4);
    EXPECT_EQ(ImageOf(L"\\f\\a.qsaa"), FirstFetched);
    EXPECT_EQ(asked.size(), 6U);
}

TEST_F(FileIconCacheTest, all_caches_share_their_lists_until_the_last_one_goes) {
    std::optional<FileIconCache> second;
    second.emplace();
    EXPECT_EQ(second->LargeImages(), cache_->LargeImages());
    EXPECT_EQ(second->SmallImages(), cache_->SmallImages());
    EXPECT_EQ(ImageOf(L"\\f\\a.exe"), FirstFetched);
    cache_.reset();
    EXPECT_EQ(second->ImageOf(L"\\f\\a.exe", FILE_ATTRIBUTE_ARCHIVE, AllKinds), FirstFetched);
    EXPECT_EQ(asked.size(), 2U);
    second.reset();
    cache_.emplace();
    EXPECT_EQ(ImageList_GetImageCount(cache_->LargeImages()), 4);
    EXPECT_EQ(ImageOf(L"\\f\\a.exe"), FirstFetched);
    EXPECT_EQ(asked.size(), 4U);
}
