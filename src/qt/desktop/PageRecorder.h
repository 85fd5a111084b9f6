#pragma once

#include "qt/desktop/PrintJob.h"
#include "qt/desktop/QtTextMetrics.h"
#include "visual/DrawBackend.h"

#include <functional>
#include <memory>
#include <vector>

namespace phial::qt
{

/// Keeps what is drawn on the pages of a document, until the document is finished and goes to its outlet.
/// There it can be painted as often as it takes, on a preview and on a printer. A document that is never
/// finished goes nowhere. Nothing can be read back or cut out.
class PageRecorder final : public DrawBackend
{
public:
    PageRecorder(QString title, const QPageLayout& layout, std::shared_ptr<QtTextMetrics> metrics,
                 PrintOutlet outlet);

    PixelSize size() const override;
    TextMetrics& metrics() override { return *metrics_; }
    PicturePtr picture() const override { return nullptr; }
    void clear(Ink ink) override;
    void rectangle(const PixelRectangle& area, std::optional<Fill> fill,
                   std::optional<Stroke> outline) override;
    void line(PixelPoint from, PixelPoint to, const Stroke& stroke) override;
    void arc(const Arc& arc, std::optional<Fill> fill, std::optional<Stroke> outline) override;
    void polygon(std::span<const PixelPoint> points, std::optional<Fill> fill,
                 std::optional<Stroke> outline) override;
    void text(PixelPoint topLeft, StringView text, const FontFace& face, Ink ink) override;
    void image(const Picture& picture, const PixelRectangle& source, const PixelRectangle& target,
               Raster raster) override;
    void gradient(const PixelRectangle& area, Colour from, Colour to, double angle, int steps) override;
    void hatch(const PixelRectangle& area, Ink ink, HatchStart start) override;
    std::optional<Colour> pixel(PixelPoint) const override { return std::nullopt; }
    void clip(std::optional<PixelRectangle> area) override;
    void newPage() override;
    /// Hands the document over; it comes back when the outlet has done with it, and raises what that raises.
    void endDocument() override;

private:
    using Primitive = std::function<void(DrawBackend&)>;
    using Primitives = std::vector<Primitive>;

    QString title_;
    QPageLayout layout_;
    std::shared_ptr<QtTextMetrics> metrics_;
    PrintOutlet outlet_;
    Primitives primitives_;
};

} // namespace phial::qt
