#pragma once

#include "documents/pdf/layout.h"

namespace zeugnis::dokumente {

struct LaidSection {
    Text footer;
    std::vector<LaidStrip> strips;
    std::vector<Place> places;
    int pages = 1;
};

/// A document broken into lines and pages. Needs a QGuiApplication, for the fonts.
struct LaidDocument {
    Text title;
    std::vector<LaidSection> sections;
    page::Form form = page::Upright;

    [[nodiscard]] std::vector<int> pagesPerSection() const;
};

LaidDocument layOut(const Document& document);

/// The bytes of a PDF file with embedded fonts, title and bookmarks, and with the checksum of the
/// .doc beside it, if there is one.
std::string pdfFromLayout(const LaidDocument& document, std::string_view docChecksum = {});

} // namespace zeugnis::dokumente
