#pragma once

class QPainter;

namespace phial::qt
{

/// How many of the screen's pixels a logical pixel has in each direction, for what is painted now. Pictures
/// of the program taken for another screen fix it.
double paintRatio(const QPainter& painter);
/// The same for windows to come.
double screenRatio();

/// The size of a logical pixel of which a screen says that so many make an inch. Desktops tell nonsense of
/// projectors and virtual screens: fewer than 60 and more than 600 count as 96.
double millimetresPerPixel(double dotsPerInch);

/// Fixes the ratio, whatever the screens say, for as long as it lives.
class FixedPixelRatio
{
public:
    explicit FixedPixelRatio(double ratio);
    ~FixedPixelRatio();
    FixedPixelRatio(const FixedPixelRatio&) = delete;
    FixedPixelRatio& operator=(const FixedPixelRatio&) = delete;

private:
    double before_;
};

} // namespace phial::qt
