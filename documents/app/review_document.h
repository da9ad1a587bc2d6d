#pragma once

#include "documents/app/document_files.h"

/// The review's text, which comes by the clipboard and not from a file. It is shown, and kept
/// nowhere unless the user does.
namespace zeugnis::dokumente {

/// Whether the call asks for the text of the clipboard.
bool IstAnzeigetext(const Aufruf& aufruf);

/// Fails with invalid-call: without a window there is no clipboard.
[[noreturn]] void AnzeigetextVerweigern();

/// Writes the text as a document into a folder of its own. Fails as AnzeigetextBilden and
/// DokumentSchreiben do.
Dokumentdateien AnzeigetextSchreiben(const std::filesystem::path& ordner, TextView text,
                                     const std::stop_token& abbruch = {});

/// What the window says about such a document.
Text AnzeigetextHinweis();

/// Whether the document was saved by a word processor since, or is open in one. Then its folder
/// must stay.
bool WirdBearbeitet(const Dokumentdateien& dateien);

} // namespace zeugnis::dokumente
