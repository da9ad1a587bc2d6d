#pragma once

#include "documents/app/command_line.h"
#include "documents/model/document.h"
#include "platform/working_directory.h"

#include <functional>
#include <optional>
#include <stop_token>

/// The two files of a document: .doc for word processors, and .pdf beside it to show and print.
namespace zeugnis::dokumente {

struct Dokumentdateien {
    Text Name; ///< of the .doc as the user knows it
    std::filesystem::path Doc;
    std::filesystem::path Pdf;
    Text Aufgehoben = {}; ///< the copy of the edited .doc that has given way; mostly empty
};

/// Writes both. The .pdf knows the checksum of its .doc, so it can be told whether that was edited
/// since; if the former one was, it is kept in a dated copy. Fails
/// as writeWholeFile does, and with invalid-call if it is told to stop; the former files are then
/// as they were. `stamm` may name a folder.
Dokumentdateien DokumentSchreiben(Arbeitsverzeichnis verzeichnis, const Document& inhalt,
                                  const Text& stamm, const std::stop_token& abbruch = {});

/// Whether both are there and the .doc has been changed by a word processor since.
bool IstBearbeitet(const Dokumentdateien& dateien);

/// The two files with this name, whether they are there or not. `stamm` may name a folder.
Dokumentdateien DokumentdateienZu(const Arbeitsverzeichnis& verzeichnis, const Text& stamm);

/// Makes what a macro makes, or finds what is to be opened; the class document is only made if it
/// is not there. Fails with file-not-found if there is no such document, and as its readers and
/// writers do.
Dokumentdateien DokumentBereitstellen(Arbeitsverzeichnis& verzeichnis, const Aufruf& aufruf,
                                      const std::stop_token& abbruch = {});

/// What the window shows.
struct Anzeige {
    Dokumentdateien Dateien;
    std::filesystem::path Pdf;
    Text Hinweis; ///< what the reader has to know about it; mostly empty
};

/// Turns a .doc into a .pdf and returns its path, or nothing if that cannot be done here.
using Umwandler = std::function<std::optional<std::filesystem::path>(const std::filesystem::path&)>;

/// The .pdf beside the .doc, or a fresh one if the .doc has been edited since. Fails with
/// file-not-found if there is none and none can be made. `abbruch` tells whether it was the user
/// who stopped the conversion.
Anzeige AnzeigeFinden(const Dokumentdateien& dateien, const Umwandler& umwandeln,
                      const std::stop_token& abbruch = {});

} // namespace zeugnis::dokumente
