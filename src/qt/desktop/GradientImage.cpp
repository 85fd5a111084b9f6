#include "qt/desktop/GradientImage.h"

#include <algorithm>
#include <cmath>
#include <list>
#include <numbers>
#include <vector>

namespace phial::qt
{

namespace
{

constexpr double RadiansPerDegree = std::numbers::pi / 180;
constexpr int MostBands = 1024;
constexpr qsizetype MostBytesKept = 16 * 1024 * 1024;
constexpr double Hair = 1e-9; // of a band: an edge that runs through a pixel's middle goes one way everywhere

QImage paint(const Gradient& gradient)
{
    const GradientBands bands(gradient);
    std::vector<QRgb> colours;
    colours.reserve(static_cast<std::size_t>(bands.count()));
    for (int band = 0; band < bands.count(); ++band) {
        colours.push_back(bands.colour(band));
    }
    const QPointF middle(gradient.size.width() / 2.0, gradient.size.height() / 2.0);
    QImage image(gradient.size, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const QPointF place = QPointF(x + 0.5, y + 0.5) - middle;
            const int band = bands.bandAt(QPointF::dotProduct(place, bands.direction()));
            row[x] = colours[static_cast<std::size_t>(band)];
        }
    }
    return image;
}

/// The passages drawn last, the latest in front.
class Kept
{
public:
    QImage image(const Gradient& gradient)
    {
        const auto known = std::find_if(entries_.begin(), entries_.end(),
                                        [&](const Entry& entry) { return entry.gradient == gradient; });
        if (known != entries_.end()) {
            entries_.splice(entries_.begin(), entries_, known);
            return entries_.front().image;
        }
        QImage made = paint(gradient);
        if (made.sizeInBytes() <= MostBytesKept) {
            keep({gradient, made});
        }
        return made;
    }

private:
    struct Entry {
        Gradient gradient;
        QImage image;
    };

    void keep(Entry entry)
    {
        bytes_ += entry.image.sizeInBytes();
        entries_.push_front(std::move(entry));
        while (bytes_ > MostBytesKept) {
            bytes_ -= entries_.back().image.sizeInBytes();
            entries_.pop_back();
        }
    }

    std::list<Entry> entries_;
    qsizetype bytes_ = 0;
};

} // namespace

GradientBands::GradientBands(const Gradient& gradient)
    : count_(std::clamp(gradient.steps, 1, MostBands)),
      direction_(std::cos(gradient.angle * RadiansPerDegree), std::sin(gradient.angle * RadiansPerDegree)),
      reach_((std::abs(direction_.x()) * gradient.size.width() +
              std::abs(direction_.y()) * gradient.size.height()) /
             2),
      from_(gradient.from), to_(gradient.to)
{
}

int GradientBands::bandAt(double distance) const
{
    const double band = (distance / reach_ + 1) / 2 * count_ + Hair;
    return static_cast<int>(std::clamp(band, 0.0, count_ - 1.0));
}

QRgb GradientBands::colour(int band) const
{
    const double share = count_ == 1 ? 0 : static_cast<double>(band) / (count_ - 1);
    const auto mixed = [share](int a, int b) { return static_cast<int>(std::lround(a + (b - a) * share)); };
    return qRgb(mixed(qRed(from_), qRed(to_)), mixed(qGreen(from_), qGreen(to_)),
                mixed(qBlue(from_), qBlue(to_)));
}

QImage gradientImage(const Gradient& gradient)
{
    static Kept kept;
    return kept.image(gradient);
}

} // namespace phial::qt
