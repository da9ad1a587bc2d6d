#pragma once

#include "comfort/delimited_text.h"
#include "files/pupil_list.h"

namespace zeugnis {

/// A line of a class list as it would be taken over.
struct Listenzeile {
    int Nummer = 0; ///< its place in the file, from 1, the heading counted
    Schueler Kind;
    Text Grund; ///< why it cannot be taken over, as a sentence; empty if it can
};

/// Reads a class list from a spreadsheet: columns in any order, with or without a heading. All
/// texts are trimmed and hold only what the data files can hold. Lines without content are left
/// out.
std::vector<Listenzeile> KlassenlisteLesen(TextView text);

/// Fills in the reasons anew, after a line was changed by hand, and gives dates their form: names
/// or sex missing, no birth date, one that stands there already, more than fit beside the
/// `vorhandene` pupils of the class.
void GruendeBilden(std::vector<Listenzeile>& zeilen, int vorhandene);

/// A text for a field of a line, as it would have been read.
Text Listenfeld(const Text& text);

/// The children of all lines without a reason.
std::vector<Schueler> KinderAus(const std::vector<Listenzeile>& zeilen);

} // namespace zeugnis
