#pragma once

#include "core/CoreFormDocument.h"
#include "qt/desktop/PrinterChoice.h"

#include <memory>

namespace phial::qt
{

/// A form document that is an SVG drawing of one page (see `SvgForm`); it prints over the whole sheet. Before
/// `Load` it has no fields and does not print.
std::shared_ptr<CoreFormDocument> newSvgFormDocument(PrinterMaker printer = printerOrPdf);

} // namespace phial::qt
