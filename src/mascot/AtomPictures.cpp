#include "mascot/AtomPictures.h"

#include "app/Session.h"
#include "app/cls_App.h"
#include "app/cls_AppURL.h"
#include "app/screen/frm_Resource.h"
#include "app/sys_Global.h"
#include "core/Arithmetic.h"
#include "visual/ControlArray.h"
#include "visual/VisualHost.h"

#include <algorithm>

namespace phial
{

namespace
{

constexpr std::size_t HeadItem = 0;
constexpr std::size_t ElectronItem = 1;
constexpr std::size_t MaskItem = 2;

constexpr double PlainHeadEdge = 100;
constexpr double PlainElectronEdge = 11;
constexpr Colour HeadGround = QBColor(11); // below a head that is a bitmap
constexpr std::uint32_t OpaquePixel = 0xFF000000;
constexpr std::uint32_t KeyPixel = 0xFFFF00FF;

struct PlainDisc {
    PixelPoint centre;
    double radius;
    Colour colour;
};

PicturePtr drawDisc(double edge, const PlainDisc& disc)
{
    DrawDevice device(visualHost().createSurface({edge, edge}, visualHost().pixelRatio()));
    device.FillStyle(FillStyle::Solid);
    device.FillColor(disc.colour);
    device.Circle(disc.centre.x, disc.centre.y, disc.radius, disc.colour);
    return device.Image();
}

/// What stands in for a picture that the installation lacks.
PicturePtr plainPicture(std::size_t item)
{
    if (item == HeadItem) {
        return drawDisc(PlainHeadEdge, {{50, 47}, 36, RGB(255, 236, 190)});
    }
    const double middle = PlainElectronEdge / 2 - 0.5;
    return drawDisc(PlainElectronEdge, {{middle, middle}, middle, RGB(0, 106, 181)});
}

PicturePtr installedPicture(std::size_t item)
{
    static constexpr std::array<StringView, 3> Files{u"atom_head.png", u"atom_electron.png",
                                                     u"atom_mask.png"};
    PicturePtr picture;
    ignoringErrors([&] { picture = LoadPicture(QVAPP()->URL()->RESOURCEGFX() + String(Files.at(item))); });
    return picture ? picture : plainPicture(item);
}

/// All three are there as soon as one is asked for.
std::shared_ptr<PictureBox> boxOf(std::size_t item)
{
    ControlArray<PictureBox> boxes(Session::current().sharedForm<frm_Resource>()->form(), u"pic_DrAtom");
    boxes.adopt();
    for (std::size_t each = HeadItem; each <= MaskItem; ++each) {
        const auto index = static_cast<std::int32_t>(each) + 1;
        if (!boxes.has(index)) {
            const auto box = boxes.add(index, makeControl<PictureBox>());
            box->AutoSize(true);
            box->Picture(installedPicture(each));
        }
    }
    return boxes(static_cast<std::int32_t>(item) + 1);
}

bool hasNoHoles(const Picture& picture)
{
    return std::ranges::all_of(picture.pixels(), [](std::uint32_t pixel) { return pixel >= OpaquePixel; });
}

PicturePtr withoutKey(const Picture& picture)
{
    PicturePtr copy = picture.copy();
    std::ranges::replace(copy->pixels(), KeyPixel, 0U);
    return copy;
}

} // namespace

const AtomPictures::Kept& AtomPictures::kept(std::size_t item)
{
    Kept& entry = kept_.at(item);
    auto box = boxes_.at(item).lock();
    if (!box) {
        box = boxOf(item);
        boxes_.at(item) = box;
    }
    PicturePtr shown = box->Picture();
    if (shown != entry.shown) {
        const bool isSolid = shown && hasNoHoles(*shown);
        const PicturePtr drawn = isSolid && item == HeadItem ? withoutKey(*shown) : shown;
        entry = {shown, drawn, isSolid};
    }
    return entry;
}

void AtomPictures::paintHead(DrawDevice& device, PixelSize area)
{
    const Kept& head = kept(HeadItem);
    if (head.isSolid) {
        device.Line(0, 0, area.width - 1, area.height - 1, HeadGround, LineShape::Filled);
    }
    if (head.drawn) {
        device.PaintPicture(head.drawn, 0, 0, area.width, area.height,
                            head.isSolid ? RasterMode::Copy : RasterMode::Paint);
    }
}

PixelSize AtomPictures::electronSize()
{
    const Kept& electron = kept(ElectronItem);
    return electron.drawn ? PixelSize{double{1} * toWhole(electron.drawn->Width()),
                                      double{1} * toWhole(electron.drawn->Height())}
                          : PixelSize();
}

void AtomPictures::paintElectron(DrawDevice& device, PixelPoint corner)
{
    const Kept& electron = kept(ElectronItem);
    const PixelSize size = electronSize();
    if (size.isEmpty()) {
        return;
    }
    if (!electron.isSolid) {
        device.PaintPicture(electron.drawn, corner.x, corner.y, size.width, size.height);
        return;
    }
    if (const Kept& mask = kept(MaskItem); mask.drawn) {
        device.PaintPicture(mask.drawn, corner.x, corner.y, size.width, size.height, RasterMode::And);
    }
    device.PaintPicture(electron.drawn, corner.x, corner.y, size.width, size.height, RasterMode::Xor);
}

} // namespace phial
