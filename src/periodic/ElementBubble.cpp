#include "periodic/ElementBubble.h"

#include "chem/cls_DataElement.h"
#include "core/Locale.h"
#include "core/NumberText.h"
#include "mascot/BalloonPainting.h"

namespace phial
{

BubblePlace BubblePlace::beside(const PixelRectangle& cell, PixelSize bubble, PixelPoint tableCorner)
{
    using Side = enm_BallonZipSide;
    constexpr double Distance = 5;
    const double x = (cell.left + cell.right()) / 2;
    const double y = (cell.top + cell.bottom()) / 2;
    const bool isAbove = cell.bottom() + bubble.height >= tableCorner.y;
    const bool isLeft = cell.right() + bubble.width >= tableCorner.x;
    const double left = isLeft ? x - Distance - bubble.width : x + Distance;
    const double top = isAbove ? y - Distance - bubble.height : y + Distance;
    if (isAbove) {
        return {isLeft ? Side::ID_BallonZipSide_RightBottom : Side::ID_BallonZipSide_LeftBottom, {left, top}};
    }
    return {isLeft ? Side::ID_BallonZipSide_RightTop : Side::ID_BallonZipSide_LeftTop, {left, top}};
}

String bubbleText(const cls_DataElement& element)
{
    constexpr char16_t LineEnd = u'\r';
    return u" Name:         " + element.NAME() + LineEnd + u" Symbol:      " + element.SYMBOL() + LineEnd +
           u" Protonen:  " + plainText(element.PROTONS()) + LineEnd + u" mol.Masse: " +
           plainText(element.MOL(), currentLocale().decimalSign) + u" g/mol";
}

} // namespace phial
