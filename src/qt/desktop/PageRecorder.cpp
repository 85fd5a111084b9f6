#include "qt/desktop/PageRecorder.h"

#include "qt/desktop/PrinterBackend.h"

#include <utility>

namespace phial::qt
{

PageRecorder::PageRecorder(QString title, const QPageLayout& layout, std::shared_ptr<QtTextMetrics> metrics,
                           PrintOutlet outlet)
    : title_(std::move(title)), layout_(layout), metrics_(std::move(metrics)), outlet_(std::move(outlet))
{
}

PixelSize PageRecorder::size() const
{
    constexpr double PixelsPerMillimetre = 96 / 25.4;
    const QRectF page = layout_.paintRect(QPageLayout::Millimeter);
    return {page.width() * PixelsPerMillimetre, page.height() * PixelsPerMillimetre};
}

void PageRecorder::clear(Ink ink)
{
    primitives_.emplace_back([=](DrawBackend& page) { page.clear(ink); });
}

void PageRecorder::rectangle(const PixelRectangle& area, std::optional<Fill> fill,
                             std::optional<Stroke> outline)
{
    primitives_.emplace_back([=](DrawBackend& page) { page.rectangle(area, fill, outline); });
}

void PageRecorder::line(PixelPoint from, PixelPoint to, const Stroke& stroke)
{
    primitives_.emplace_back([=](DrawBackend& page) { page.line(from, to, stroke); });
}

void PageRecorder::arc(const Arc& arc, std::optional<Fill> fill, std::optional<Stroke> outline)
{
    primitives_.emplace_back([=](DrawBackend& page) { page.arc(arc, fill, outline); });
}

void PageRecorder::polygon(std::span<const PixelPoint> points, std::optional<Fill> fill,
                           std::optional<Stroke> outline)
{
    primitives_.emplace_back([corners = std::vector(points.begin(), points.end()), fill,
                              outline](DrawBackend& page) { page.polygon(corners, fill, outline); });
}

void PageRecorder::text(PixelPoint topLeft, StringView text, const FontFace& face, Ink ink)
{
    const auto& known = static_cast<const QtFontFace&>(face); // faces of our own metrics only
    primitives_.emplace_back([topLeft, line = String(text), kept = metrics_->face(known.traits()),
                              ink](DrawBackend& page) { page.text(topLeft, line, *kept, ink); });
}

// The picture may go on to change.
void PageRecorder::image(const Picture& picture, const PixelRectangle& source, const PixelRectangle& target,
                         Raster raster)
{
    primitives_.emplace_back([copy = picture.copy(), source, target, raster](DrawBackend& page) {
        page.image(*copy, source, target, raster);
    });
}

void PageRecorder::gradient(const PixelRectangle& area, Colour from, Colour to, double angle, int steps)
{
    primitives_.emplace_back([=](DrawBackend& page) { page.gradient(area, from, to, angle, steps); });
}

void PageRecorder::hatch(const PixelRectangle& area, Ink ink, HatchStart start)
{
    primitives_.emplace_back([=](DrawBackend& page) { page.hatch(area, ink, start); });
}

void PageRecorder::clip(std::optional<PixelRectangle> area)
{
    primitives_.emplace_back([=](DrawBackend& page) { page.clip(area); });
}

void PageRecorder::newPage()
{
    primitives_.emplace_back([](DrawBackend& page) { page.newPage(); });
}

void PageRecorder::endDocument()
{
    const auto paint = [pages = std::exchange(primitives_, {}), metrics = metrics_](QPrinter& printer) {
        PrinterBackend backend(printer, metrics);
        for (const Primitive& primitive : pages) {
            primitive(backend);
        }
        backend.endDocument();
    };
    outlet_({title_, layout_, paint});
}

} // namespace phial::qt
