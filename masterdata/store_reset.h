#pragma once

#include "files/pupil_list.h"

namespace zeugnis {

/// Rewrites all six stores by pupil with one blank record per pupil: every text and every choice
/// of the whole class is gone.
void SpeicherLeeren(Arbeitsverzeichnis& verzeichnis, const Namensliste& liste);

/// Deletes the dated copies of the stores, step by step and without a failure. Without the folder
/// Sicherheit the files are deleted where the steps have led to, and the working directory ends
/// too high: an installation always has the folder. If it cannot be told whether the folder is
/// there, nothing is deleted.
void SicherheitLeeren(Arbeitsverzeichnis& verzeichnis);

} // namespace zeugnis
