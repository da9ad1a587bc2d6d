#pragma once

#include "tests/documents/report_installation.h"

namespace zeugnis::test {

/// A full class of 33 children whose texts are composed on the entry screens from the delivered
/// modules, as a teacher would: special names, every group used, and a few remarks written by hand.
class ComposedClass : public ReportInstallation {
  public:
    static constexpr int Children = 33;

    ComposedClass(const Text& klasse, const Text& halbjahr);

    /// The place of the child whose remarks are many short lines, one endless sentence, many
    /// sentences.
    static constexpr int ShortLines = 4;
    static constexpr int EndlessSentence = 9;
    static constexpr int LongRemarks = 14;

  private:
    void takeModules() const;
    void compose();
    void enterGrades() const;

    Text m_klasse;
};

/// What is written by hand into the remarks of the child at this place; mostly nothing.
Text remarksByHand(int place);

} // namespace zeugnis::test
