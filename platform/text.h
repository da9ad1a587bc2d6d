#pragma once

#include <span>
#include <string>
#include <string_view>

namespace zeugnis {

/// Text of the program: one unit is one character of the files' code page, so lengths, positions
/// and carets count the same everywhere.
using Text = std::u16string;
using TextView = std::u16string_view;

inline constexpr TextView Zeilenende = u"\r\n";

/// UTF-8 is used for what meets the outside: the terminal, file names, exception texts.
/// Malformed bytes become U+FFFD.
Text textFromUtf8(std::string_view utf8);
std::string utf8FromText(TextView text);

/// Takes away blanks at both ends. Only character 32 is a blank.
Text trimmed(TextView text);

/// The text with CR LF for each line end, whatever it was: CR LF, CR or LF.
Text withBoxLineEnds(TextView text);

/// Decimal, a leading minus for negative numbers.
Text textFromNumber(int number);

/// A text that holds an optional sign and digits, blanks around it aside.
/// Fails with type-mismatch for anything else and with overflow outside 16 bits;
/// `what` names the value in the failure's sentence.
int numberFromText(TextView text, TextView what);

/// "Mats", "Mats und Ida", "Mats, Ida und Zoé"; empty words are left out.
Text enumerated(std::span<const Text> words);

/// True if both are the same but for the case of Latin letters, umlauts included.
bool sameIgnoringCase(TextView left, TextView right);

} // namespace zeugnis
