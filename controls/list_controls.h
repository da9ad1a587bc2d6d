#pragma once

#include "controls/control.h"

#include <vector>

namespace zeugnis {

/// What combo and list boxes share: entries and the index of the picked one, -1 for none.
class ListControl : public Control {
  public:
    using Control::Control;
    [[nodiscard]] bool takesFocus() const override { return true; }

    [[nodiscard]] const std::vector<Text>& entries() const { return m_entries; }
    [[nodiscard]] int listIndex() const { return m_listIndex; }

    void addItem(const Text& entry);

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

/// A combo shows the picked entry as its text, and before that the text it was designed with.
class ComboBox : public ListControl {
  public:
    using ListControl::ListControl;
    Text Inscription;

  protected:
    void picked() override;
};

} // namespace zeugnis
