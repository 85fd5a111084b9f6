#pragma once

#include <QProxyStyle>

class QWidget;

namespace phial::qt
{

/// How the toolkit's own widgets are painted: in the palette's roles, with edges, paddings and bars that grow
/// with the zoom of the window they stand in. Nothing of it is kept by the widgets, so that another set of
/// colours or another zoom takes effect with the next painting.
class LookStyle final : public QProxyStyle
{
    Q_OBJECT

public:
    LookStyle();

    void polish(QPalette& palette) override;
    void polish(QWidget* widget) override;
    using QProxyStyle::polish;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* answer) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override;
    QRect subElementRect(SubElement element, const QStyleOption* option,
                         const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const override;
};

/// How many pixels a pixel of a form takes where the widget stands; 1 outside of the area of a form, as in
/// its menu.
double zoomOf(const QWidget* widget);

} // namespace phial::qt
