#include "files/school_data.h"

#include "tests/support/failure_of.h"

#include <gtest/gtest.h>

namespace zeugnis::test {
namespace {

TEST(SchoolData, CountsTheNextYearFromTheFirstFourCharacters) {
    EXPECT_EQ(NaechstesSchuljahrNach(u"2005/2006"), u"2006/2007");
    EXPECT_EQ(NaechstesSchuljahrNach(u"2005/2010"), u"2006/2007");
    EXPECT_EQ(NaechstesSchuljahrNach(u"1999"), u"2000/2001");
    for (const TextView noYear : {u"", u"200x/2006", u"05/06", u"    /2006"})
        EXPECT_EQ(failureOf([&] { NaechstesSchuljahrNach(Text(noYear)); }), "type-mismatch")
            << utf8FromText(noYear);
}

} // namespace
} // namespace zeugnis::test
