#pragma once

#include "controls/screen.h"

namespace zeugnis {

/// Stands for a screen that is still to be built, and says so.
class UnfinishedScreen : public Screen {
  public:
    UnfinishedScreen(Programm& programm, TextView name);
    void load() override {}

    Label Label1{*this, u"Label1"};
};

} // namespace zeugnis
