#pragma once

#include "checks/text_checks.h"

namespace zeugnis {

// The checks of text_checks.h, each for itself. They append what they find.

void AnfaengePruefen(const Text& text, std::vector<Befundstelle>& befunde);
void LeerzeichenPruefen(const Text& text, std::vector<Befundstelle>& befunde);
void EndenPruefen(const Text& text, std::vector<Befundstelle>& befunde);
void FugenPruefen(const Text& text, const Bausteinwoerter& bausteine,
                  std::vector<Befundstelle>& befunde);
void FuerwoerterPruefen(const Text& text, const Textumstand& umstand,
                        std::vector<Befundstelle>& befunde);

} // namespace zeugnis
