#pragma once

#include <QString>

#include <vector>

namespace zeugnis {

class Button;
class Frame;
class GSAenderung12;
class GSAenderung34;
class Label;
class TextBox;

/// What an editor's window shows of its pages.

/// Boxes that belong together, and what they are for.
struct BoxGroup {
    QString heading;
    std::vector<TextBox*> boxes;
    int firstNumber = 1;    ///< of the boxes that are not red
    Label* label = nullptr; ///< the screen's own heading above this group
};

struct EditorPage {
    Button& button;
    QChar mnemonic;
    Frame& frame;
    std::vector<BoxGroup> left;
    std::vector<BoxGroup> right;
    std::vector<Label*> notes = {}; ///< above the groups
};

std::vector<EditorPage> pagesOf(GSAenderung12& screen);
std::vector<EditorPage> pagesOf(GSAenderung34& screen);

} // namespace zeugnis
