#pragma once

#include "controls/control_array.h"
#include "controls/screen.h"

namespace zeugnis {

/// The panel with the lists that Word makes. It has no state.
class Listen : public Screen {
  public:
    explicit Listen(Programm& programm);
    void load() override {}

    void Command1_Click(int Index);

    Label Label1{*this, u"Label1"};                          ///< what the panel is for
    ControlArray<Button> Command1{*this, u"Command1", 0, 5}; ///< lists and forms; 5 closes
};

} // namespace zeugnis
