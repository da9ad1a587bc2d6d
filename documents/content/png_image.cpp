#include "documents/content/help_markup.h"
#include "platform/failure.h"

#include <algorithm>

namespace zeugnis::dokumente {
namespace {

constexpr std::string_view Kennung("\x89PNG\r\n\x1A\n", 8);
constexpr size_t BreiteAb = 16;
constexpr size_t HoeheAb = 20;
constexpr size_t Kopflaenge = 24;
constexpr int TwipsJePunkt = 12; // 120 points to the inch

int zahlAb(std::string_view bytes, size_t ab) {
    int zahl = 0;
    for (const char byte : bytes.substr(ab + 1, 3))
        zahl = zahl * 256 + static_cast<unsigned char>(byte);
    return zahl;
}

} // namespace

Image BildAusPng(std::string png, Text beschreibung) {
    const bool istPng = png.size() > Kopflaenge && png.compare(0, Kennung.size(), Kennung) == 0;
    const int breite = istPng ? zahlAb(png, BreiteAb) : 0;
    const int hoehe = istPng ? zahlAb(png, HoeheAb) : 0;
    if (breite == 0 || hoehe == 0)
        throw Laufzeitfehler(Fehlerart::InvalidPicture,
                             u"Das Bild „" + beschreibung + u"“ ist keine PNG-Datei.");
    const double verkleinert =
        std::min({1.0, static_cast<double>(page::TextWidth) / (breite * TwipsJePunkt),
                  static_cast<double>(page::TextHeight) / (hoehe * TwipsJePunkt)});
    return {.png = std::move(png),
            .width = static_cast<Twips>(breite * TwipsJePunkt * verkleinert),
            .height = static_cast<Twips>(hoehe * TwipsJePunkt * verkleinert),
            .description = std::move(beschreibung)};
}

} // namespace zeugnis::dokumente
