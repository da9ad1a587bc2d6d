#include "documents/app/command_line.h"
#include "platform/failure.h"

#include <gtest/gtest.h>

namespace zeugnis::dokumente {
namespace {

TEST(CommandLine, TakesDocumentMacroAndSwitchInAnyOrder) {
    const Aufruf aufruf =
        AufrufLesen({u"--no-window", u"ZeugnisseSchreiben.doc", u"/MZeugnisseSchreiben"});
    EXPECT_EQ(aufruf.Dokument, u"ZeugnisseSchreiben.doc");
    EXPECT_EQ(aufruf.Makro, u"ZeugnisseSchreiben");
    EXPECT_TRUE(aufruf.OhneFenster);
}

TEST(CommandLine, PutsANameThatWasSplitAtItsBlankTogetherAgain) {
    EXPECT_EQ(AufrufLesen({u"3", u"aZeugnisse32.doc"}).Dokument, u"3 aZeugnisse32.doc");
}

TEST(CommandLine, RefusesWhatItDoesNotKnow) {
    EXPECT_THROW(AufrufLesen({}), Laufzeitfehler);
    EXPECT_THROW(AufrufLesen({u"--no-window"}), Laufzeitfehler);
    EXPECT_THROW(AufrufLesen({u"a.doc", u"--print"}), Laufzeitfehler);
}

} // namespace
} // namespace zeugnis::dokumente
