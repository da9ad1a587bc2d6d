#pragma once

#include "platform/text.h"

#include <array>

/// The texts of the pages on interests and on remarks, before the expansion of placeholders.
namespace zeugnis::jahrgang34 {

/// Takes the place of the first interest where there is nothing to say.
inline constexpr TextView KeinEintrag = u"Kein Eintrag";

/// "Lena malt gern."
Text InteressenSatzBilden(const Text& vorname, const Text& interesse);

inline constexpr int Zensuren = 3;

/// Which marks differ, by box.
using Zensurwahl = std::array<bool, Zensuren>;

/// "Die Noten in Deutsch und Sport weichen ab." Empty if no mark differs.
Text ZensurSatzBilden(const Zensurwahl& wahl, const std::array<Text, Zensuren>& namen,
                      const Text& anfang, const Text& schluss);

/// The text, and a blank behind it unless it is empty.
Text MitLeerzeichen(const Text& text);

/// "gut, weiter so." Empty without a judgement.
Text UrteilBilden(const Text& urteil, const Text& schluss);

/// What the remarks are composed of, in this order. The parts on learning make one sentence.
struct Bemerkungsteile {
    const Text& ZensurSatz;
    const Text& LernTeil1;
    const Text& LernListe;
    const Text& LernTeil2;
    const Text& VersetzungsSatz;
};

/// Line ends stand behind the marks and before the Versetzung; if there is nothing on learning both
/// stay, and an empty line is left.
Text BemerkungenVerbinden(const Bemerkungsteile& teile);

} // namespace zeugnis::jahrgang34
