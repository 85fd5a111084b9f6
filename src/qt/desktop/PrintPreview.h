#pragma once

#include "qt/desktop/PrintJob.h"

namespace phial::qt
{

/// Shows a finished document, page by page. The user sends it to a printer of his choice, saves it as a PDF
/// file, or closes the window, and nothing is printed. Raises 482 when printer or file refuses.
void previewAndPrint(const PrintJob& job);

} // namespace phial::qt
