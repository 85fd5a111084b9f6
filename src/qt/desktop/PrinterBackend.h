#pragma once

#include "qt/desktop/PainterBackend.h"

#include <QPrinter>

namespace phial::qt
{

/// Draws on the pages of a printer, or of a document file when the printer is set to one. Logical pixels are
/// 96 to an inch here, too. Nothing can be read back or cut out.
class PrinterBackend final : public PainterBackend
{
public:
    /// Begins the document; raises 482 when the printer refuses. The printer must outlive this object.
    PrinterBackend(QPrinter& printer, std::shared_ptr<TextMetrics> metrics);
    ~PrinterBackend() override;

    PicturePtr picture() const override { return nullptr; }
    std::optional<Colour> pixel(PixelPoint) const override { return std::nullopt; }
    void newPage() override;
    void endDocument() override;

private:
    void combine(const std::optional<BitMerge>&, const QRect&, const Drawing&) override {}

    QPrinter& printer_;
};

} // namespace phial::qt
