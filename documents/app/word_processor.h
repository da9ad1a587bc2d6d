#pragma once

#include <filesystem>
#include <optional>
#include <stop_token>

class QString;

/// Word or, where it is not there, LibreOffice, as far as they are found by the search path.
namespace zeugnis::dokumente {

/// Opens the document for editing, and returns at once. False if there is no program for it.
bool inTextverarbeitungOeffnen(const std::filesystem::path& dokument);

/// Makes a .pdf of the document in `ordner` with LibreOffice. Takes seconds. Nothing if that is
/// not there, does not succeed or is told to stop; then it is ended at once. May run in a thread of
/// its own.
std::optional<std::filesystem::path> inPdfUmwandeln(const std::filesystem::path& dokument,
                                                    const std::filesystem::path& ordner,
                                                    const std::stop_token& abbruch = {});

} // namespace zeugnis::dokumente
