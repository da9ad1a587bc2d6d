#pragma once

#include "documents/app/command_line.h"
#include "documents/model/document.h"
#include "platform/working_directory.h"

namespace zeugnis::dokumente {

/// How a document is shown.
enum class Fensterart { Vorschau, Zeugnisse, Zeugnisliste, ZeugnislisteNeu };

/// What is made from the files of the installation when `Dokument` is asked for with `Makro`.
struct Schluessel {
    TextView Dokument;
    TextView Makro;
    /// The name of the result without ".doc" and ".pdf".
    Text (*Stamm)(Arbeitsverzeichnis& verzeichnis);
    Document (*Inhalt)(Arbeitsverzeichnis& verzeichnis);
    Fensterart Fenster = Fensterart::Vorschau;
};

/// The key with these two names, in any case; nullptr if there is none.
const Schluessel* SchluesselFinden(TextView dokument, TextView makro);

/// The key whose result has this file name, for example "3aZeugnisse32.doc"; nullptr if there is
/// none. Reads the master data, so it fails as they do.
const Schluessel* SchluesselDesErgebnisses(Arbeitsverzeichnis& verzeichnis, TextView datei);

/// The window for what is asked for. A document without a key, or whose master data cannot be
/// read, is only shown.
Fensterart FensterFuer(Arbeitsverzeichnis& verzeichnis, const Aufruf& aufruf);

} // namespace zeugnis::dokumente
