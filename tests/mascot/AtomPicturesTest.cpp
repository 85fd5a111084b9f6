#include "app/Session.h"
#include "app/screen/frm_Resource.h"
#include "mascot/DrAtomTest.h"
#include "visual/PictureBox.h"

namespace phial
{

namespace
{

using ::testing::HasSubstr;

constexpr std::uint32_t Black = 0xFF000000;
constexpr std::uint32_t White = 0xFFFFFFFF;
constexpr std::uint32_t Magenta = 0xFFFF00FF;
constexpr std::uint32_t Cyan = 0xFF00FFFF;

class AtomPicturesTest : public DrAtomTest
{
protected:
    static std::shared_ptr<PictureBox> box(std::int32_t item)
    {
        return Session::current().sharedForm<frm_Resource>()->form().control<PictureBox>(u"pic_DrAtom", item);
    }
    /// A bitmap of one colour with a square of another in its middle.
    static PicturePtr bitmap(double edge, double half, std::uint32_t ground, std::uint32_t square)
    {
        auto picture = disc(edge, half);
        for (std::uint32_t& pixel : picture->pixels()) {
            pixel = pixel == 0 ? ground : square;
        }
        return picture;
    }
    std::uint32_t shown(std::size_t column, std::size_t row)
    {
        return atom->surface().image(1)->at(column, row);
    }
};

TEST_F(AtomPicturesTest, StandInThreeBoxesOfTheSharedForm)
{
    drawn();
    EXPECT_EQ(box(1)->Picture()->Width(), 100);
    EXPECT_EQ(box(1)->surface().size(), (PixelSize{100, 100}));
    EXPECT_EQ(box(2)->surface().size(), (PixelSize{11, 11}));
    EXPECT_EQ(box(3)->surface().size(), (PixelSize{11, 11}));
    const auto second = form->add<ctl_DrAtom>(u"dra_Second");
    const PicturePtr head = box(1)->Picture();
    second->surface().image(1);
    EXPECT_EQ(box(1)->Picture(), head) << "one set for all mascots";
}

TEST_F(AtomPicturesTest, AMissingPictureHasAPlainOneInItsPlace)
{
    drawn();
    ASSERT_TRUE(box(3)->Picture()) << "the test has installed no mask";
    EXPECT_EQ(box(3)->Picture()->size(), (PixelSize{11, 11}));
}

TEST_F(AtomPicturesTest, AProgramCanPutOthersThereAtAnyTime)
{
    atom->ORBS(1);
    drawn();
    box(2)->Picture(disc(21, 8));
    atom->REDRAW();
    EXPECT_THAT(drawn(), HasSubstr("image 21x21 from 0,0 21x21 to 80,34 21x21"))
        << "the sprite's size is taken from the box";
}

TEST_F(AtomPicturesTest, BitmapsWithAMaskAreCombinedBitByBit)
{
    atom->ORBS(1);
    drawn();
    box(1)->Picture(bitmap(100, 36, Magenta, White));
    box(2)->Picture(bitmap(11, 3, Black, Cyan));
    box(3)->Picture(bitmap(11, 3, White, Black));
    atom->REDRAW();
    const std::string picture = drawn();
    EXPECT_THAT(picture, HasSubstr("box 0,0 100x100 fill #00FFFF\n"
                                   "image 100x100 from 0,0 100x100 to 0,0 100x100 copy\n"
                                   "image 11x11 from 0,0 11x11 to 84,40 11x11 and holes #FF00FF\n"
                                   "image 11x11 from 0,0 11x11 to 84,40 11x11 xor holes #FF00FF\n"));
    EXPECT_EQ(shown(20, 20), White);
    EXPECT_EQ(shown(2, 2), 0U) << "the head's key colour is see-through";
    EXPECT_EQ(shown(89, 45), Cyan) << "the electron stands on the hole beside the head";
    EXPECT_EQ(shown(94, 45), 0U) << "and its mask leaves the hole around it";
    EXPECT_EQ(box(1)->Picture()->at(0, 0), Magenta) << "the box keeps what it was given";
}

TEST_F(AtomPicturesTest, ABoxWithoutAPictureLeavesItOut)
{
    drawn();
    box(1)->Picture(nullptr);
    box(2)->Picture(nullptr);
    atom->REDRAW();
    EXPECT_EQ(drawn().find("image"), std::string::npos);
}

} // namespace

} // namespace phial
