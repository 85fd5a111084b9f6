#include "mascot/DrAtomTest.h"
#include "support/Allocations.h"

namespace phial
{

namespace
{

/// Takes all drawing and keeps none of it.
class BlindSurface final : public DrawBackend
{
public:
    BlindSurface(PixelSize size, TextMetrics& metrics)
        : metrics_(metrics), picture_(std::make_shared<Picture>(size))
    {
    }

    /// How many primitives have come.
    static inline int drawn = 0;

    PixelSize size() const override { return picture_->size(); }
    TextMetrics& metrics() override { return metrics_; }
    PicturePtr picture() const override { return picture_; }
    void clear(Ink) override { ++drawn; }
    void rectangle(const PixelRectangle&, std::optional<Fill>, std::optional<Stroke>) override { ++drawn; }
    void line(PixelPoint, PixelPoint, const Stroke&) override { ++drawn; }
    void arc(const Arc&, std::optional<Fill>, std::optional<Stroke>) override { ++drawn; }
    void polygon(std::span<const PixelPoint>, std::optional<Fill>, std::optional<Stroke>) override
    {
        ++drawn;
    }
    void text(PixelPoint, StringView, const FontFace&, Ink) override { ++drawn; }
    void image(const Picture&, const PixelRectangle&, const PixelRectangle&, Raster) override { ++drawn; }
    void gradient(const PixelRectangle&, Colour, Colour, double, int) override { ++drawn; }
    void hatch(const PixelRectangle&, Ink, HatchStart) override { ++drawn; }
    std::optional<Colour> pixel(PixelPoint) const override { return std::nullopt; }
    void clip(std::optional<PixelRectangle>) override {}

private:
    TextMetrics& metrics_;
    PicturePtr picture_;
};

class MascotMemory : public DrAtomTest
{
protected:
    MascotMemory()
    {
        outside.visual().surfacesFrom([this](PixelSize size) {
            return std::make_shared<BlindSurface>(size, outside.visual().metrics());
        });
        outside.random().numbers({0.01, 0.9, 0.6, 0.3, 0.02, 0.5, 0.8});
        outside.display().moveCursor(300, 200);
        form->Show();
    }

    /// What a hundred ticks with their frames take from `new`.
    std::size_t takenByTicks()
    {
        ticks(2); // the first ones make what is kept
        atom->surface().image(1);
        const int drawnBefore = BlindSurface::drawn;
        const std::size_t before = test::allocations();
        for (int tick = 0; tick < 100; ++tick) {
            ticks();
            atom->surface().image(1);
        }
        const std::size_t taken = test::allocations() - before;
        EXPECT_GE(BlindSurface::drawn - drawnBefore, 100 * (1 + 1 + 8 + 2)); // cleared, head, electrons, eyes
        return taken;
    }
};

TEST_F(MascotMemory, IsNotTakenByATickAndItsFrameInAnyMood)
{
    atom->EYEBLINKING(30);
    for (int mood = 0; mood <= 6; ++mood) {
        atom->MOOD(static_cast<enm_DrAtomMood>(mood));
        EXPECT_EQ(takenByTicks(), 0U) << mood;
    }
}

TEST_F(MascotMemory, IsNotTakenWhileATextIsSaid)
{
    atom->BUBBLESAY(nullptr, String(500, u'a'));
    EXPECT_EQ(takenByTicks(), 0U);
    EXPECT_TRUE(atom->BUSY());
}

} // namespace

} // namespace phial
