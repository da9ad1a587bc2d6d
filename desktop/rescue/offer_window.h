#pragma once

#include "rescue/offers.h"
#include "rescue/typed_keeper.h"

#include <QDialog>

#include <functional>

class QLabel;
class QPushButton;

namespace zeugnis {

class ComparePane;
class WrappedTree;
class WindowHost;

/// Offers what was typed and not saved in an earlier run, child by child and section by section,
/// beside what the files hold.
class OfferWindow : public QDialog {
    Q_OBJECT

  public:
    /// `help` opens the help text.
    OfferWindow(rescue::OfferList offers, rescue::TypedKeeper& keeper, WindowHost& host,
                std::function<void()> help, QWidget* owner);

  private:
    void showList();
    void showChosen();
    void take();
    void copy();
    void refuse();
    void refuseAll();
    void settled(size_t index);
    [[nodiscard]] std::optional<size_t> chosen() const;

    rescue::OfferList m_offers;
    rescue::TypedKeeper& m_keeper;
    WindowHost& m_host;
    std::function<void()> m_help;
    WrappedTree* m_list;
    ComparePane* m_texts;
    QLabel* m_told;
    QPushButton* m_take;
    QPushButton* m_copy;
    QPushButton* m_refuse;
};

} // namespace zeugnis
