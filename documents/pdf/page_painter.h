#pragma once

#include "documents/pdf/pdf_writer.h"

class QPainter;

namespace zeugnis::dokumente {

/// Draws a page of the section, counted from 0, and its foot. One unit of the painter is one twip,
/// its origin is the corner of the paper.
void drawPage(QPainter& painter, const page::Form& form, const LaidSection& section, int page);

} // namespace zeugnis::dokumente
