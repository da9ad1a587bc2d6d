#pragma once

#include "documents/model/document.h"

#include <functional>

namespace zeugnis::dokumente {

/// Gives the bytes of a picture by its name. May fail as readWholeFile does.
using Bildquelle = std::function<std::string(const Text& name)>;

/// A help text in the simple markup that docs/documents.md describes. Fails with invalid-picture
/// for a picture that is no PNG file.
Document HilfeAusMarkup(TextView markup, const Bildquelle& bilder);

/// A picture as large as it appears on the screen, or made smaller to fit the page. Fails with
/// invalid-picture.
Image BildAusPng(std::string png, Text beschreibung);

} // namespace zeugnis::dokumente
