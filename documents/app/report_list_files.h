#pragma once

#include "documents/app/document_files.h"
#include "documents/content/report_list_store.h"

/// The class list document on its way to paper and to the windows.
namespace zeugnis::dokumente {

Document Listendokument(const Listenstand& stand);

/// Opens the list or begins it anew, and sees to it that its document exists.
Listenstand ListeBereitstellen(Arbeitsverzeichnis& verzeichnis, bool neu);

/// Writes .doc and .pdf. Fails as DokumentSchreiben does.
Dokumentdateien ListendokumentSchreiben(const Arbeitsverzeichnis& verzeichnis,
                                        const Listenstand& stand);

/// The files it is written to, whether they are there or not.
Dokumentdateien Listendateien(const Arbeitsverzeichnis& verzeichnis, const Listenstand& stand);

} // namespace zeugnis::dokumente
