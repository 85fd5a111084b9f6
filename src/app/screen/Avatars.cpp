#include "app/screen/Avatars.h"

#include "app/Session.h"
#include "app/cls_App.h"
#include "app/cls_AppURL.h"
#include "app/screen/frm_Resource.h"
#include "app/sys_Global.h"
#include "core/CoreFiles.h"
#include "core/CorePathText.h"
#include "core/CoreRoot.h"
#include "core/CoreStringList.h"
#include "core/RuntimeError.h"
#include "visual/ImageList.h"
#include "visual/PictureBox.h"
#include "visual/VisualHost.h"

#include <algorithm>

namespace phial
{

namespace
{

frm_Resource& resources()
{
    return *Session::current().sharedForm<frm_Resource>();
}

ImageList& store()
{
    return *resources().part<ImageList>(u"img_Avatars");
}

/// Head and shoulders of nobody in particular.
PicturePtr drawDefaultAvatar(double pixelRatio)
{
    constexpr double Size = 96;
    constexpr Colour ShadeColour = RGB(215, 222, 229);
    constexpr Colour Figure = RGB(120, 134, 148);
    DrawDevice device(visualHost().createSurface({Size, Size}, pixelRatio));
    device.FillStyle(FillStyle::Solid);
    device.Line(0, 0, Size - 1, Size - 1, ShadeColour, LineShape::Filled);
    device.FillColor(Figure);
    device.Circle(Size / 2, Size * 0.36, Size * 0.19, Figure);
    device.Circle(Size / 2, Size, Size * 0.36, Figure, std::nullopt, 1.05);
    return device.Image();
}

PicturePtr defaultAvatar()
{
    const auto box = resources().part<PictureBox>(u"pic_AvatarDefault", [](PictureBox& fresh) {
        const PicturePtr picture = drawDefaultAvatar(1);
        picture->finer(drawDefaultAvatar);
        fresh.Picture(picture);
    });
    return box->Picture();
}

} // namespace

void AvatarImagesClear()
{
    store().Clear();
}

void AvatarImagesLoad()
{
    AvatarImagesClear();
    const String folder = QVAPP()->URL()->RESOURCEAVATARS();
    for (const String& file : coreRoot().CoreFiles().List(folder + u"*.gif", false, false, true)) {
        ignoringErrors([&] { store().AddFile(lowerCase(CorePathText::BaseName(file)), folder + file); });
    }
}

std::int32_t AvatarImageCount()
{
    return store().Count();
}

PicturePtr AvatarImageGet(const Variant& pIndexOrKey)
{
    PicturePtr picture;
    ignoringErrors([&] { picture = store().Picture(pIndexOrKey); });
    return picture ? picture : defaultAvatar();
}

String AvatarImageKey(const Variant& pIndexOrKey)
{
    return store().Key(pIndexOrKey);
}

std::int32_t AvatarImageIndex(const Variant& pIndexOrKey)
{
    return store().Index(pIndexOrKey);
}

void paintAvatar(DrawDevice& device, const PicturePtr& avatar, const PixelRectangle& area)
{
    if (avatar->size().isEmpty() || area.isEmpty()) {
        return;
    }
    const double scale = std::min(area.width / avatar->Width(), area.height / avatar->Height());
    const double width = avatar->Width() * scale;
    const double height = avatar->Height() * scale;
    device.PaintPicture(avatar, area.left + (area.width - width) / 2, area.top + (area.height - height) / 2,
                        width, height);
}

} // namespace phial
