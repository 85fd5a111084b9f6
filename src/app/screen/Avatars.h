#pragma once

#include "core/Variant.h"
#include "visual/DrawDevice.h"
#include "visual/Picture.h"

#include <cstdint>

/// The avatar store: an image list on the shared form `frm_Resource`. Its entries count from 1; an entry's
/// key is the lower-case name of its file without extension. Where an entry is meant, an index or a key is
/// given.
namespace phial
{

/// Empties the store.
void AvatarImagesClear();

/// Fills the store anew with the GIF files of the folder URL.RESOURCEAVATARS, each with the finer pictures
/// beside it (see LoadPicture). They are listed only; a picture is decoded when it is first asked for. Of two
/// files whose names differ only in case the first counts.
void AvatarImagesLoad();

/// How many entries there are.
std::int32_t AvatarImageCount();

/// The picture of an entry; a neutral picture when there is no such entry or its file is no picture.
PicturePtr AvatarImageGet(const Variant& pIndexOrKey);

/// Key and index of an entry; raise 9 when there is no such entry.
String AvatarImageKey(const Variant& pIndexOrKey);
std::int32_t AvatarImageIndex(const Variant& pIndexOrKey);

/// Paints an avatar as large as the area (in pixels) allows, in its middle and not distorted.
void paintAvatar(DrawDevice& device, const PicturePtr& avatar, const PixelRectangle& area);

} // namespace phial
