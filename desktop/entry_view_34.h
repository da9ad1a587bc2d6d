#pragma once

#include "desktop/screen_window.h"
#include "years34/entry_screen.h"

class QBoxLayout;
class QGridLayout;
class QLayout;
class QVBoxLayout;

namespace zeugnis {

class EntryView34 : public ScreenWindow {
  public:
    EntryView34(GSAGFI& screen, WindowHost& host, QWidget* below);

  private:
    QWidget* pages();
    QWidget* support();
    QWidget* interests();
    QWidget* remarks();
    QVBoxLayout* beginPage(Frame& frame, Label* hint);
    QLayout* badges();
    QBoxLayout* supportSentence();
    QBoxLayout* groups();
    QBoxLayout* markSentence();
    QBoxLayout* learningSentence();
    QLayout* texts();

    ChoiceRow* choice(OptionButton& option);
    QLabel* heading(Label& label);
    QLabel* sentencePart(Label& label);
    QBoxLayout* rows(const ControlArray<OptionButton>& options);
    QBoxLayout* rows(const ControlArray<CheckBox>& boxes);
    QGridLayout* twoColumns(const ControlArray<OptionButton>& options);

    GSAGFI& m_entry;
};

} // namespace zeugnis
