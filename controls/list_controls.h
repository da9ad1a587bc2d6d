#pragma once

#include "controls/control.h"
#include "platform/collation.h"

#include <vector>

namespace zeugnis {

/// What combo and list boxes share: entries and the index of the picked one, -1 for none.
class ListControl : public Control {
  public:
    using Control::Control;
    [[nodiscard]] bool takesFocus() const override { return true; }

    [[nodiscard]] const std::vector<Text>& entries() const { return m_entries; }
    [[nodiscard]] int listIndex() const { return m_listIndex; }

    virtual void addItem(const Text& entry);

    /// Fails with invalid-call if there is no such entry. The index becomes -1 silently.
    void removeItem(int index);
    void clear();

    /// From code: another index runs the click handler at once. Fails with invalid-call outside
    /// -1 to the last entry.
    void setListIndex(int index);

    /// A user's pick runs the click handler always.
    void userPick(int index);

  protected:
    std::vector<Text> m_entries;
    int m_listIndex = -1;

    virtual void picked() {}

  private:
    void check(int index, int lowest) const;
};

class ListBox : public ListControl {
  public:
    using ListControl::ListControl;
};

/// Sorts its entries as they arrive; equal ones keep the order in which they came.
class SortedListBox : public ListBox {
  public:
    using ListBox::ListBox;
    void addItem(const Text& entry) override;

  private:
    Collation m_order;
};

/// A combo shows the picked entry as its text, and before that the text it was designed with.
/// A user may also type a text of his own behind it; no entry is picked then.
class ComboBox : public ListControl {
  public:
    using ListControl::ListControl;
    Text Inscription;

    /// Runs only for typed characters: a pick is a click.
    Handler onChange;

    void userType(TextView characters);

  protected:
    void picked() override;
};

} // namespace zeugnis
