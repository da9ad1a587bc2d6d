#pragma once

#include "comfort/entry_access.h"

namespace zeugnis {

/// The lines and boxes that the open page's text is made of, in the order in which a hand can click
/// them anew: by the names of their controls, and in work and social behaviour behind that of the
/// category's button: "Command3(1) Option1(4)".
std::vector<Text> GewaehlteZeilen(const Eingabeschirm& schirm);

/// What the store of work and social behaviour holds of them until the child is chosen; nothing
/// elsewhere.
std::vector<Text> GespeicherteZeilen(const Eingabeschirm& schirm, int seite, int kind);

} // namespace zeugnis
