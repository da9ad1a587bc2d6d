#pragma once

#include "desktop/screen_window.h"
#include "masterdata/master_data_screen.h"

class QBoxLayout;
class QGridLayout;
class QLabel;
class QLayout;

namespace zeugnis {

/// School data and class list side by side. What is locked looks like a text on paper; what can be
/// written in has a frame. A class is typed in by the keyboard alone.
class MasterDataView : public ScreenWindow {
  public:
    MasterDataView(GsBasis& screen, WindowHost& host, QWidget* below);

  private:
    QBoxLayout* head();
    QWidget* schoolArea();
    QBoxLayout* schoolForm();
    QWidget* scrolled(QLayout& form);
    QLayout* pathRow();
    QWidget* pupilArea();
    QBoxLayout* pupilColumn();
    void showWhole(EntryList& list);
    QBoxLayout* pupilForm();
    QWidget* genderRow();
    QBoxLayout* workingGroups();
    QBoxLayout* actions();

    QLayout* areaHead(const QString& title, const Control& lockedWith,
                      std::initializer_list<TintedButton*> buttons);
    QBoxLayout* captioned(TextBox& box, const QString& name, const QString& spokenName = {});
    QBoxLayout* schoolField(int index);
    QBoxLayout* schoolYear(); ///< never narrower than its figures
    QBoxLayout* pupilField(int index);
    void orderByUse();

    [[nodiscard]] QString pupilRow(int index) const;
    [[nodiscard]] QString pupilHeading() const;
    [[nodiscard]] QString notice() const;

    GsBasis& m_basis;
};

} // namespace zeugnis
