#pragma once

#include "tests/support/test_installation.h"

#include <gtest/gtest.h>

namespace zeugnis::test {

/// A copy of tests/fixtures/klasse2b: Lena (w, 'Chor'), Tim (m, no working group, texts in the
/// areas 0 and 7), Emir (m, four groups) and Mia (w, groups in the fields 2 and 3; area 3 locked
/// without a text), second half-year. The modules name themselves: "Ma7-1" is column 7, row 1 of
/// Mathe2.Txt, "1Ma7-1" the same of Mathe1.Txt, "Zw4" row 4 of Zwischentexte.Txt.
class Klasse2b : public TemporaryFolder {
  public:
    Klasse2b() {
        std::filesystem::copy(std::filesystem::path(ZEUGNIS_SOURCE_FOLDER) /
                                  "tests/fixtures/klasse2b",
                              path(), std::filesystem::copy_options::recursive);
    }

    void replace(TextView file, TextView former, TextView later) const {
        Text content = read(file);
        const size_t at = content.find(former);
        ASSERT_NE(at, Text::npos) << utf8FromText(former);
        write(file, content.replace(at, former.size(), later));
    }
    void firstHalfYear() const { halfYear(u"1"); }
    void halfYear(TextView value) const {
        replace(u"Daten/Basisdaten.txt", u"\"2\",\"2027", u"\"" + Text(value) + u"\",\"2027");
    }
    /// The last record of the class list tells the class.
    void classIs(TextView klasse) const {
        replace(u"Daten/Namen.Txt", u"4,\"2b\"", u"4,\"" + Text(klasse) + u"\"");
    }
};

} // namespace zeugnis::test
