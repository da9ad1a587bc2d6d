#include "documents/content/dated_copy.h"

#include "platform/whole_file.h"

namespace zeugnis::dokumente {

Text Kopiename(const Arbeitsverzeichnis& verzeichnis, const Text& stamm, TextView endung,
               const Text& heute, const std::optional<std::string>& bytes) {
    const Text anfang = stamm + Text(Kopiewort) + heute;
    Text kopie = anfang + Text(endung);
    for (int nummer = 2; hasFile(verzeichnis, kopie); ++nummer) {
        if (bytes && readWholeFile(verzeichnis, kopie) == *bytes)
            return kopie;
        kopie = anfang + u"-" + textFromNumber(nummer) + Text(endung);
    }
    return kopie;
}

Text KopieAnlegen(const Arbeitsverzeichnis& verzeichnis, const Text& stamm, TextView endung,
                  const Text& heute, const std::string& bytes) {
    Text kopie = Kopiename(verzeichnis, stamm, endung, heute, bytes);
    writeWholeFile(verzeichnis, kopie, bytes);
    return kopie;
}

} // namespace zeugnis::dokumente
