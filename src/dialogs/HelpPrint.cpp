#include "dialogs/HelpPrint.h"

#include "core/RuntimeError.h"
#include "visual/Picture.h"
#include "visual/Printer.h"

#include <algorithm>

namespace phial
{

void printHelpPage(const String& file, const String& title)
{
    constexpr double PaperMargin = 10; // millimetres
    constexpr double MillimetresPerPixel = 25.4 / 96;
    constexpr double Largest = 2;

    PicturePtr picture;
    ignoringErrors([&] { picture = LoadPicture(file); });
    if (!picture || picture->size().isEmpty()) {
        return;
    }
    Printer printer;
    printer.Title(title);
    printer.Orientation(picture->Width() > picture->Height() ? PageOrientation::Landscape
                                                             : PageOrientation::Portrait);
    DrawDevice& page = printer.device();
    page.ScaleMode(ScaleUnit::Millimetres);
    const double width = page.ScaleWidth() - 2 * PaperMargin;
    const double height = page.ScaleHeight() - 2 * PaperMargin;
    const double scale =
        std::min({width / picture->Width(), height / picture->Height(), Largest * MillimetresPerPixel});
    const double left = PaperMargin + (width - picture->Width() * scale) / 2;
    page.PaintPicture(picture, left, PaperMargin, picture->Width() * scale, picture->Height() * scale);
    printer.EndDoc();
}

} // namespace phial
