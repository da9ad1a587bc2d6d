#include "driver/model_hand.h"

#include "common/screen_names.h"
#include "controls/list_controls.h"
#include "controls/program.h"
#include "controls/text_box.h"
#include "controls/user_actions.h"

namespace zeugnis::driver {

void ModelHand::start(Programm& program) { program.show(bildschirme::GsStart); }

bool ModelHand::click(Control& control) { return user::click(control); }

bool ModelHand::doubleClick(Control& control) { return user::doubleClick(control); }

bool ModelHand::pick(ListControl& list, int entry) { return user::pick(list, entry); }

bool ModelHand::focus(Control& control) { return user::focus(control); }

void ModelHand::blur(Screen& screen) { user::blur(screen); }

void ModelHand::caret(TextBox& box, size_t start, size_t end) { box.select(start, end); }

bool ModelHand::type(TextBox& box, const Text& characters) { return user::type(box, characters); }

bool ModelHand::type(ComboBox& combo, const Text& characters) {
    return user::type(combo, characters);
}

bool ModelHand::key(TextBox& box, char16_t key) { return user::key(box, key); }

bool ModelHand::paste(TextBox& box, const Text& text) { return user::paste(box, text); }

void ModelHand::tick(Timer& timer) { user::tick(timer); }

bool ModelHand::close(Screen& screen) {
    user::close(screen);
    return true;
}

} // namespace zeugnis::driver
