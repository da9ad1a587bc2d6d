#include "documents/pdf/pagination.h"

#include <gtest/gtest.h>

namespace zeugnis::dokumente {
namespace {

constexpr Twips Page = 100;

std::vector<int> pagesOf(const std::vector<Strip>& strips) {
    std::vector<int> pages;
    for (const Place& place : paginate(strips, Page))
        pages.push_back(place.page);
    return pages;
}

TEST(Pagination, AFullPageIsNotTooFull) {
    EXPECT_EQ(pagesOf({{.height = 50}, {.height = 50}}), (std::vector{0, 0}));
    EXPECT_EQ(pagesOf({{.height = 50}, {.height = 51}}), (std::vector{0, 1}));
}

TEST(Pagination, SpacesAddUpBetweenStripsAndVanishAtTheEdges) {
    const auto places = paginate({{.height = 40, .spaceBefore = 30, .spaceAfter = 5},
                                  {.height = 40, .spaceBefore = 7, .spaceAfter = 90},
                                  {.height = 10, .spaceBefore = 30}},
                                 Page);
    EXPECT_EQ(places[0].y, 0);
    EXPECT_EQ(places[1].y, 52);
    EXPECT_EQ(places[2].page, 1);
    EXPECT_EQ(places[2].y, 0);
}

TEST(Pagination, GoesBackToTheLastPlaceThatAllowsABreak) {
    EXPECT_EQ(pagesOf({{.height = 40},
                       {.height = 40},
                       {.height = 15, .mayBreakBefore = false},
                       {.height = 40, .mayBreakBefore = false}}),
              (std::vector{0, 1, 1, 1}));
}

TEST(Pagination, BreaksWhereItMustIfNothingAllowsIt) {
    EXPECT_EQ(pagesOf({{.height = 60},
                       {.height = 60, .mayBreakBefore = false},
                       {.height = 60, .mayBreakBefore = false}}),
              (std::vector{0, 1, 2}));
}

TEST(Pagination, AStripHigherThanThePageStandsAlone) {
    EXPECT_EQ(pagesOf({{.height = 10}, {.height = 300}, {.height = 10}}), (std::vector{0, 1, 2}));
}

TEST(Pagination, AStripCanAskForANewPageButNotForAnEmptyOne) {
    EXPECT_EQ(pagesOf({{.height = 10, .startsPage = true}, {.height = 10, .startsPage = true}}),
              (std::vector{0, 1}));
}

} // namespace
} // namespace zeugnis::dokumente
