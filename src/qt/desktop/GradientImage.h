#pragma once

#include <QColor>
#include <QImage>
#include <QPointF>
#include <QSize>

namespace phial::qt
{

/// A passage between two colours over an area, in its own pixels. `angle` in degrees, 0 from left to right,
/// 90 from top to bottom.
struct Gradient {
    QSize size;
    QRgb from = 0;
    QRgb to = 0;
    double angle = 0;
    int steps = 1;

    bool operator==(const Gradient& other) const
    {
        return size == other.size && from == other.from && to == other.to && angle == other.angle &&
               steps == other.steps;
    }
};

/// The bands of such a passage: they lie across its direction and part its way over the area evenly. More
/// than 1024 look no different and are not made.
class GradientBands
{
public:
    explicit GradientBands(const Gradient& gradient);

    int count() const { return count_; }
    /// Of length 1.
    QPointF direction() const { return direction_; }
    /// Where the band begins, counted from the area's middle in the direction.
    double start(int band) const { return reach_ * (2.0 * band / count_ - 1); }
    /// The band at that distance from the middle; the first and the last one go on without end.
    int bandAt(double distance) const;
    QRgb colour(int band) const;

private:
    int count_;
    QPointF direction_;
    double reach_; ///< from the middle to the farthest corners, in the direction
    QRgb from_;
    QRgb to_;
};

/// The area with its bands. Those drawn last are kept, up to some megabytes, since a table of cells draws few
/// of them many times.
QImage gradientImage(const Gradient& gradient);

} // namespace phial::qt
