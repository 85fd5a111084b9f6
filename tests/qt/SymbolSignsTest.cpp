#include "qt/desktop/SymbolSigns.h"

#include "qt/desktop/FontCatalogue.h"
#include "qt/desktop/PictureBackend.h"
#include "qt/desktop/QtTextMetrics.h"
#include "visual/DrawDevice.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <memory>
#include <vector>

namespace phial::qt
{

namespace
{

/// One sign of a symbol font, drawn large in black; its ink by columns of the box around it.
class DrawnSign
{
public:
    DrawnSign(StringView font, char16_t code)
        : picture_(std::make_shared<Picture>(PixelSize{Edge, Edge})),
          device_(std::make_shared<PictureBackend>(picture_, std::make_shared<QtTextMetrics>()))
    {
        constexpr double Size = 72;
        device_.Cls();
        device_.FontName(font);
        device_.FontSize(Size);
        device_.Print(StringView(&code, 1));
        findBox();
    }

    std::size_t width() const { return right_ - left_; }
    std::size_t height() const { return bottom_ - top_; }

    /// How much ink a column of the box has, from its top.
    std::size_t inkOf(std::size_t column) const
    {
        std::size_t ink = 0;
        for (std::size_t row = top_; row < bottom_; ++row) {
            ink += isInk(left_ + column, row) ? 1U : 0U;
        }
        return ink;
    }

    /// How many separate strokes one meets from top to bottom.
    std::size_t strokesOf(std::size_t column) const
    {
        std::size_t strokes = 0;
        for (std::size_t row = top_; row < bottom_; ++row) {
            const bool begins = row == top_ || !isInk(left_ + column, row - 1);
            strokes += isInk(left_ + column, row) && begins ? 1U : 0U;
        }
        return strokes;
    }

    /// The share of the box that is ink.
    double filled() const
    {
        double ink = 0;
        for (std::size_t column = 0; column < width(); ++column) {
            ink += static_cast<double>(inkOf(column));
        }
        return ink / static_cast<double>(width() * height());
    }

    /// The column with the most ink from edge to edge of the box.
    std::size_t tallestColumn() const
    {
        std::size_t tallest = 0;
        for (std::size_t column = 0; column < width(); ++column) {
            tallest = inkOf(column) > inkOf(tallest) ? column : tallest;
        }
        return tallest;
    }

private:
    static constexpr double Edge = 160;

    bool isInk(std::size_t column, std::size_t row) const
    {
        constexpr std::uint32_t Half = 0x80;
        return (picture_->at(column, row) & 0xFFU) < Half;
    }

    void findBox()
    {
        left_ = picture_->columns();
        top_ = picture_->rows();
        for (std::size_t row = 0; row < picture_->rows(); ++row) {
            for (std::size_t column = 0; column < picture_->columns(); ++column) {
                if (isInk(column, row)) {
                    left_ = std::min(left_, column);
                    right_ = std::max(right_, column + 1);
                    top_ = std::min(top_, row);
                    bottom_ = std::max(bottom_, row + 1);
                }
            }
        }
    }

    PicturePtr picture_;
    DrawDevice device_;
    std::size_t left_ = 0;
    std::size_t right_ = 0;
    std::size_t top_ = 0;
    std::size_t bottom_ = 0;
};

TEST(SymbolSigns, ApproximationIsTwoWaves)
{
    const DrawnSign sign(u"Symbol", u'\u00BB');
    ASSERT_GT(sign.width(), sign.height());
    for (std::size_t column = sign.width() / 4; column < sign.width() * 3 / 4; ++column) {
        EXPECT_EQ(sign.strokesOf(column), 2U) << "column " << column;
    }
}

TEST(SymbolSigns, ArrowsPointToTheirSides)
{
    const DrawnSign right(u"Wingdings", u'\u00E0');
    const DrawnSign left(u"Wingdings", u'\u00DF');
    EXPECT_GT(right.tallestColumn(), right.width() / 2);
    EXPECT_LT(left.tallestColumn(), left.width() / 2);
    EXPECT_EQ(right.strokesOf(right.width() / 4), 1U);
    EXPECT_EQ(left.strokesOf(left.width() * 3 / 4), 1U);
}

TEST(SymbolSigns, DotIsRoundAndFull)
{
    const DrawnSign dot(u"Marlett", u'i');
    EXPECT_NEAR(static_cast<double>(dot.width()), static_cast<double>(dot.height()), 2);
    EXPECT_GT(dot.filled(), 0.7);
    EXPECT_LT(dot.filled(), 0.9);
}

TEST(SymbolSigns, OtherFontsHaveNoSigns)
{
    EXPECT_FALSE(isSymbolFont(u"Tahoma"));
    EXPECT_EQ(symbolSign(u"Tahoma", u'i'), u'\0');
}

TEST(FontCatalogue, LinesHaveTheHeightOfTheNamedFontWhateverFontIsTaken)
{
    for (const StringView name : {u"Tahoma", u"Symbol", u"Wingdings", u"Marlett"}) {
        FontSpec traits;
        traits.name = name;
        traits.size = 30;
        const auto face = QtTextMetrics().face(traits);
        const auto lines = designedLines(name);
        ASSERT_TRUE(lines);
        EXPECT_EQ(face->ascent(), std::round(lines->ascent * traits.pixelSize()));
        EXPECT_EQ(face->height() - face->ascent(), std::round(lines->descent * traits.pixelSize()));
    }
}

} // namespace

} // namespace phial::qt
