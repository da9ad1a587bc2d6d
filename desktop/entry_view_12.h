#pragma once

#include "desktop/screen_window.h"
#include "years12/entry_screen.h"

class QBoxLayout;
class QFrame;
class QGridLayout;
class QLayout;
class QVBoxLayout;

namespace zeugnis {

class EntryView12 : public ScreenWindow {
  public:
    EntryView12(Kompetenzen& screen, WindowHost& host, QWidget* below);

  private:
    QBoxLayout* head();
    QBoxLayout* titleRow();
    QLayout* pageButtons();
    QWidget* pages();
    QBoxLayout* texts();
    QBoxLayout* actions();

    QVBoxLayout* beginPage(int page);
    QWidget* interests();
    QWidget* competences(int page, const char* columns);
    QWidget* remarks();
    QBoxLayout* badges();
    QGridLayout* subjects();

    void addGroup(QBoxLayout& column, int group);
    void addOptions(QBoxLayout& column, int group, int first, int last);
    void oneStop(int group);
    void addBox(QBoxLayout& column, CheckBox& box);
    void addOpening(QBoxLayout& column, int label);
    void jumpBetweenPageAndText();

    Kompetenzen& m_entry;
};

} // namespace zeugnis
