#pragma once

#include "documents/model/document.h"
#include "platform/working_directory.h"

namespace zeugnis::dokumente {

/// What is made from the files of the installation when `Dokument` is asked for with `Makro`.
struct Schluessel {
    TextView Dokument;
    TextView Makro;
    /// The name of the result without ".doc" and ".pdf".
    Text (*Stamm)(Arbeitsverzeichnis& verzeichnis);
    Document (*Inhalt)(Arbeitsverzeichnis& verzeichnis);
};

/// The key with these two names, in any case; nullptr if there is none.
const Schluessel* SchluesselFinden(TextView dokument, TextView makro);

/// The key whose result has this file name, for example "3aZeugnisse32.doc"; nullptr if there is
/// none. Reads the master data, so it fails as they do.
const Schluessel* SchluesselDesErgebnisses(Arbeitsverzeichnis& verzeichnis, TextView datei);

} // namespace zeugnis::dokumente
