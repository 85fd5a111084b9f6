// The periodic table with cells of 64 pixels at the ratio 2: all of it painted beside its own texts and lines
// without the gradients, a hover, a step of a tile that is dragged beside a copy of the table's picture, and
// the search for the cell under the pointer. In a real window drawn into memory: opened and painted again
// beside a QGraphicsScene of the same cells.

#include "BenchSession.h"
#include "PaintWatch.h"
#include "chem/cls_DataElement.h"
#include "chem/cls_DataElements.h"
#include "core/NativePath.h"
#include "periodic/ctl_PSE.h"
#include "qt/base/QtText.h"
#include "visual/Form.h"
#include "visual/VisualHost.h"

#include <QApplication>
#include <QGraphicsItem>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QImage>
#include <QPainter>

#include <benchmark/benchmark.h>
#include <stdexcept>
#include <utility>

namespace
{

using namespace phial;

constexpr double Ratio = 2;
constexpr double Edge = 64; ///< of a cell

String elementFile()
{
    return systemPath(std::filesystem::path(PHIAL_BENCH_DATA).parent_path() / "resources" / "data" /
                      "elements2.dat");
}

PixelSize tableSize()
{
    return {(Edge + 1) * TableGrid::Columns, (Edge + 1) * TableGrid::Rows};
}

/// A form with the table; it is shown where a benchmark asks for that.
class TableOnForm
{
public:
    TableOnForm()
    {
        form->ScaleMode(ScaleUnit::Pixels);
        const PixelSize size = tableSize();
        form->Move(0, 0, size.width * 15, size.height * 15);
        table->FIXEDSIZE(true);
        table->Move(0, 0, size.width, size.height);
        table->LOAD(elementFile());
    }
    ~TableOnForm()
    {
        form->discard();
        PaintWatch::endClosed();
    }
    TableOnForm(const TableOnForm&) = delete;
    TableOnForm& operator=(const TableOnForm&) = delete;

    Control& control() { return *table; }
    PointerEvent over(std::size_t cell) const
    {
        const PixelRectangle area = table->parts()[cell].area;
        return {PointerButton::None, 0, area.left + area.width / 2, area.top + area.height / 2};
    }

    std::shared_ptr<Form> form = std::make_shared<Form>(u"frm_Bench");
    std::shared_ptr<ctl_PSE> table = form->add<ctl_PSE>(u"pse_Bench");
};

/// The sheet alone, as the control has it.
PeriodicSheet filledSheet(cls_DataElements& elements)
{
    elements.IMPORT(elementFile());
    PeriodicSheet sheet;
    sheet.grid = {Edge, Edge};
    sheet.style.fontName = u"Calibri";
    sheet.fill(elements);
    if (sheet.cells().size() != 118) {
        throw std::runtime_error("the elements are missing");
    }
    return sheet;
}

/// Draws all but gradients.
class WithoutGradients final : public DrawBackend
{
public:
    explicit WithoutGradients(std::shared_ptr<DrawBackend> surface) : surface_(std::move(surface)) {}

    PixelSize size() const override { return surface_->size(); }
    TextMetrics& metrics() override { return surface_->metrics(); }
    PicturePtr picture() const override { return surface_->picture(); }
    void clear(Ink ink) override { surface_->clear(ink); }
    void rectangle(const PixelRectangle& area, std::optional<Fill> fill,
                   std::optional<Stroke> outline) override
    {
        surface_->rectangle(area, fill, outline);
    }
    void line(PixelPoint from, PixelPoint to, const Stroke& stroke) override
    {
        surface_->line(from, to, stroke);
    }
    void arc(const Arc& arc, std::optional<Fill> fill, std::optional<Stroke> outline) override
    {
        surface_->arc(arc, fill, outline);
    }
    void polygon(std::span<const PixelPoint> points, std::optional<Fill> fill,
                 std::optional<Stroke> outline) override
    {
        surface_->polygon(points, fill, outline);
    }
    void text(PixelPoint topLeft, StringView text, const FontFace& face, Ink ink) override
    {
        surface_->text(topLeft, text, face, ink);
    }
    void image(const Picture& picture, const PixelRectangle& source, const PixelRectangle& target,
               Raster raster) override
    {
        surface_->image(picture, source, target, raster);
    }
    void gradient(const PixelRectangle&, Colour, Colour, double, int) override {}
    void hatch(const PixelRectangle& area, Ink ink, HatchStart start) override
    {
        surface_->hatch(area, ink, start);
    }
    std::optional<Colour> pixel(PixelPoint point) const override { return surface_->pixel(point); }
    void clip(std::optional<PixelRectangle> area) override { surface_->clip(area); }

private:
    std::shared_ptr<DrawBackend> surface_;
};

void tableRedraw(benchmark::State& state)
{
    const TableOnForm shown;
    shown.table->surface().image(Ratio);
    for (auto _ : state) {
        shown.table->REDRAW();
        benchmark::DoNotOptimize(shown.table->surface().image(Ratio));
    }
}
BENCHMARK(tableRedraw)->Name("TableRedraw")->Unit(benchmark::kMillisecond);

void tableTextsAndLines(benchmark::State& state)
{
    cls_DataElements elements;
    const PeriodicSheet sheet = filledSheet(elements);
    DrawDevice device(std::make_shared<WithoutGradients>(visualHost().createSurface(tableSize(), Ratio)));
    for (auto _ : state) {
        device.Cls();
        sheet.paint(device, nullptr);
    }
}
BENCHMARK(tableTextsAndLines)->Name("TableTextsAndLines")->Unit(benchmark::kMillisecond);

void tableHover(benchmark::State& state)
{
    TableOnForm shown;
    shown.table->surface().image(Ratio);
    const PointerEvent places[] = {shown.over(0), shown.over(60)};
    std::size_t step = 0;
    for (auto _ : state) {
        shown.control().pointerMove(places[++step % 2]);
        benchmark::DoNotOptimize(shown.table->surface().image(Ratio));
    }
}
BENCHMARK(tableHover)->Name("TableHover")->Unit(benchmark::kMicrosecond);

void tableDragStep(benchmark::State& state)
{
    TableOnForm shown;
    shown.table->MODE(enm_PSEMode::ID_PSEMode_Place);
    shown.table->DRAGADD(u"Cl");
    shown.table->surface().image(Ratio);
    PointerEvent hand{PointerButton::Left, 0, 3.5 * Edge, 9.5 * Edge};
    shown.control().pointerDown(hand);
    for (auto _ : state) {
        hand.X = hand.X < 15 * Edge ? hand.X + 7 : 3.5 * Edge;
        hand.Y = hand.X / 2;
        shown.control().pointerMove(hand);
        benchmark::DoNotOptimize(shown.table->surface().image(Ratio));
    }
}
BENCHMARK(tableDragStep)->Name("TableDragStep")->Unit(benchmark::kMicrosecond);

/// What a tile that is moved would cost if the table's picture were copied each time.
void surfaceBlit(benchmark::State& state)
{
    const QSize size(static_cast<int>(tableSize().width * Ratio),
                     static_cast<int>(tableSize().height * Ratio));
    QImage table(size, QImage::Format_ARGB32_Premultiplied);
    table.fill(Qt::red);
    QImage screen(size, QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state) {
        QPainter painter(&screen);
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        painter.drawImage(0, 0, table);
        painter.end();
        benchmark::DoNotOptimize(screen.constBits());
    }
}
BENCHMARK(surfaceBlit)->Name("SurfaceBlit")->Unit(benchmark::kMicrosecond);

void tableHitTest(benchmark::State& state)
{
    cls_DataElements elements;
    const PeriodicSheet sheet = filledSheet(elements);
    const PixelRectangle last = sheet.cells().back().painted.area;
    const PixelPoint places[] = {
        {last.left + 5, last.top + 5}, {8 * Edge, 2.5 * Edge}, {12.5 * Edge, 7.5 * Edge}};
    std::size_t step = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(sheet.cellAt(places[++step % std::size(places)]));
    }
}
BENCHMARK(tableHitTest)->Name("TableHitTest");

// The same cells by the toolkit's scene.

class SceneCell final : public QGraphicsItem
{
public:
    explicit SceneCell(const PeriodicSheet::Cell& cell)
        : area_(0, 0, cell.painted.area.width - 1, cell.painted.area.height - 1),
          base_(QRgb(cell.painted.base.red() << 16 | cell.painted.base.green() << 8 |
                     cell.painted.base.blue())),
          symbol_(qt::toQt(cell.painted.symbol)), protons_(QString::number(cell.painted.element->PROTONS())),
          mass_(QString::number(cell.painted.element->MOL())), isDouble_(cell.painted.element->DOUBLEATOMS())
    {
        setPos(cell.painted.area.left, cell.painted.area.top);
        setFlag(ItemClipsToShape); // what a cell paints stays within it
    }

    QRectF boundingRect() const override { return area_; }
    void paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*) override
    {
        QLinearGradient ground(area_.topLeft(), area_.bottomRight());
        ground.setColorAt(0, base_.lighter(110));
        ground.setColorAt(1, base_.darker(120));
        painter->fillRect(area_, ground);
        painter->setPen(QPen(base_.darker(130), 2));
        painter->drawLine(area_.topRight(), area_.bottomRight());
        painter->drawLine(area_.bottomRight(), area_.bottomLeft());
        painter->setPen(QPen(base_.lighter(120), 2));
        painter->drawLine(area_.bottomLeft(), area_.topLeft());
        painter->drawLine(area_.topLeft(), area_.topRight());
        painter->setPen(Qt::black);
        painter->drawRect(area_);
        // In points, as the table has them at this size.
        static const QFont Small = font(13);
        static const QFont Large = font(24);
        painter->setFont(Small);
        painter->setPen(Qt::red);
        painter->drawText(area_, Qt::AlignLeft | Qt::AlignBottom, protons_);
        painter->setPen(base_.darker());
        painter->drawText(area_, Qt::AlignLeft | Qt::AlignTop, mass_);
        painter->setPen(Qt::black);
        painter->setFont(Large);
        painter->drawText(area_, Qt::AlignCenter, symbol_);
        if (isDouble_) {
            painter->drawText(area_, Qt::AlignRight | Qt::AlignVCenter, QStringLiteral("*"));
        }
    }

private:
    static QFont font(double points)
    {
        QFont font(QStringLiteral("Carlito"));
        font.setPointSizeF(points);
        return font;
    }

    QRectF area_;
    QColor base_;
    QString symbol_;
    QString protons_;
    QString mass_;
    bool isDouble_;
};

class SceneWindow
{
public:
    SceneWindow()
    {
        cls_DataElements elements;
        const PeriodicSheet sheet = filledSheet(elements);
        for (const PeriodicSheet::Cell& cell : sheet.cells()) {
            scene_.addItem(new SceneCell(cell));
        }
        for (int caption = 0; caption < Captions; ++caption) {
            scene_.addSimpleText(QStringLiteral("VIII"))->setPos(caption * Edge / 2, 0);
        }
        view_.resize(static_cast<int>(tableSize().width), static_cast<int>(tableSize().height));
        view_.show();
    }

    void repaint() { view_.viewport()->update(); }

private:
    static constexpr int Captions = 31;

    QGraphicsScene scene_;
    QGraphicsView view_{&scene_};
};

void tableOpen(benchmark::State& state)
{
    PaintWatch watch;
    for (auto _ : state) {
        TableOnForm shown;
        shown.form->Show();
        watch.finish();
    }
}
BENCHMARK(tableOpen)->Name("TableOpen")->Unit(benchmark::kMillisecond);

void sceneOpen(benchmark::State& state)
{
    PaintWatch watch;
    for (auto _ : state) {
        const SceneWindow shown;
        watch.finish();
    }
}
BENCHMARK(sceneOpen)->Name("SceneOpen")->Unit(benchmark::kMillisecond);

void tableRepaint(benchmark::State& state)
{
    PaintWatch watch;
    const TableOnForm shown;
    shown.form->Show();
    watch.finish();
    for (auto _ : state) {
        shown.table->REDRAW();
        watch.finish();
    }
}
BENCHMARK(tableRepaint)->Name("TableRepaint")->Unit(benchmark::kMillisecond);

void sceneRepaint(benchmark::State& state)
{
    PaintWatch watch;
    SceneWindow shown;
    watch.finish();
    for (auto _ : state) {
        shown.repaint();
        watch.finish();
    }
}
BENCHMARK(sceneRepaint)->Name("SceneRepaint")->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    const BenchSession session(argc, argv);
    return runBenchmarks(argc, argv);
}
