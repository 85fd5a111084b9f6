#include "qt/desktop/Cursors.h"

#include "qt/desktop/PictureImage.h"

#include <QPixmap>

namespace phial::qt
{

QCursor cursorFor(MousePointer pointer, const PicturePtr& picture)
{
    switch (pointer) {
    case MousePointer::Cross:
        return Qt::CrossCursor;
    case MousePointer::Text:
        return Qt::IBeamCursor;
    case MousePointer::SizeAll:
        return Qt::SizeAllCursor;
    case MousePointer::Hourglass:
        return Qt::WaitCursor;
    case MousePointer::Forbidden:
        return Qt::ForbiddenCursor;
    case MousePointer::Custom:
        if (picture) {
            return QCursor(QPixmap::fromImage(imageCopy(*picture)), static_cast<int>(picture->Width() / 2),
                           0);
        }
        break;
    case MousePointer::Default:
    case MousePointer::Arrow:
        break;
    }
    return Qt::ArrowCursor;
}

} // namespace phial::qt
