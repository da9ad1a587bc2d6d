#include "documents/pdf/pagination.h"

#include <gtest/gtest.h>

namespace zeugnis::dokumente {
namespace {

constexpr Twips Page = 100;

TEST(Pagination, BreaksWhereItMayAndElseWhereItMust) {
    const auto kept = [](Twips height) { return Strip{.height = height, .mayBreakBefore = false}; };
    const Strip starts{.height = 10, .startsPage = true};
    const std::pair<std::vector<Strip>, std::vector<int>> cases[] = {
        {{{.height = 50}, {.height = 50}}, {0, 0}},
        {{{.height = 50}, {.height = 51}}, {0, 1}},
        {{{.height = 40}, {.height = 40}, kept(15), kept(40)}, {0, 1, 1, 1}},
        {{{.height = 60}, kept(60), kept(60)}, {0, 1, 2}},
        {{{.height = 10}, {.height = 300}, {.height = 10}}, {0, 1, 2}},
        {{starts, starts}, {0, 1}},
    };
    for (const auto& [strips, expected] : cases) {
        std::vector<int> pages;
        for (const Place& place : paginate(strips, Page))
            pages.push_back(place.page);
        EXPECT_EQ(pages, expected);
    }
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

} // namespace
} // namespace zeugnis::dokumente
