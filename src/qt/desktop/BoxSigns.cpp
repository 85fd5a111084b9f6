#include "qt/desktop/BoxSigns.h"

#include "core/Palette.h"
#include "qt/desktop/DesktopColours.h"

#include <QIconEngine>
#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>
#include <iterator>

namespace phial::qt
{

namespace
{

struct BoxSign {
    QStyle::StandardPixmap icon;
    Colour ground;
    const char* drawing; ///< on 48 by 48; $ground and $ink stand for the colours
};

constexpr BoxSign BoxSigns[] = {
    {QStyle::SP_MessageBoxInformation, Palette::Accent,
     R"(<circle cx="24" cy="24" r="21" fill="$ground"/><circle cx="24" cy="14.5" r="3" fill="$ink"/>
<path d="M24 22v13" stroke="$ink" stroke-width="5" stroke-linecap="round"/>)"},
    {QStyle::SP_MessageBoxQuestion, Palette::Accent,
     R"(<circle cx="24" cy="24" r="21" fill="$ground"/><circle cx="24" cy="34.5" r="3" fill="$ink"/>
<path d="M17.5 18.5c0-4 3-6.5 6.5-6.5s6.5 2.5 6.5 6c0 4.5-6.5 5-6.5 10" fill="none" stroke="$ink"
stroke-width="4.5" stroke-linecap="round"/>)"},
    {QStyle::SP_MessageBoxWarning, Palette::TryAgain,
     R"(<path d="M24 5L45 42H3z" fill="$ground" stroke="$ground" stroke-width="4" stroke-linejoin="round"/>
<path d="M24 18v11" stroke="$ink" stroke-width="5" stroke-linecap="round"/><circle cx="24" cy="36.5" r="3"
fill="$ink"/>)"},
    {QStyle::SP_MessageBoxCritical, Palette::Failure,
     R"(<path d="M15.3 3h17.4L45 15.3v17.4L32.7 45H15.3L3 32.7V15.3z" fill="$ground"/>
<path d="M16.5 16.5l15 15m0-15l-15 15" stroke="$ink" stroke-width="5" stroke-linecap="round"/>)"},
};

/// Draws a sign at whatever size is asked for.
class SignEngine final : public QIconEngine
{
public:
    explicit SignEngine(QByteArray drawing) : drawing_(std::move(drawing)) {}

    void paint(QPainter* painter, const QRect& area, QIcon::Mode /*mode*/, QIcon::State /*state*/) override
    {
        QSvgRenderer(drawing_).render(painter, area);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return scaledPixmap(size, mode, state, 1);
    }
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal /*scale*/) override
    {
        QPixmap drawn(size);
        drawn.fill(Qt::transparent);
        QPainter painter(&drawn);
        paint(&painter, drawn.rect(), mode, state);
        return drawn;
    }
    QIconEngine* clone() const override { return new SignEngine(*this); }

private:
    QByteArray drawing_;
};

QByteArray drawingOf(const BoxSign& sign)
{
    return QStringLiteral("<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 48 48\">%1</svg>")
        .arg(QLatin1String(sign.drawing))
        .replace(QLatin1String("$ground"), toQColor(sign.ground).name())
        .replace(QLatin1String("$ink"), toQColor(Palette::OnAccent).name())
        .toUtf8();
}

} // namespace

QIcon boxSign(QStyle::StandardPixmap icon)
{
    const auto* const sign = std::find_if(std::begin(BoxSigns), std::end(BoxSigns),
                                          [icon](const BoxSign& entry) { return entry.icon == icon; });
    return sign == std::end(BoxSigns) ? QIcon() : QIcon(new SignEngine(drawingOf(*sign)));
}

QPixmap drawnSign(QStyle::StandardPixmap icon, int size, double ratio)
{
    QPixmap drawn = boxSign(icon).pixmap((QSizeF(size, size) * ratio).toSize(), 1.0);
    drawn.setDevicePixelRatio(ratio);
    return drawn;
}

} // namespace phial::qt
