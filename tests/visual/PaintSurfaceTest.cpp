#include "visual/PaintSurface.h"

#include "core/Palette.h"
#include "core/SessionState.h"
#include "support/Raises.h"
#include "visual/FormTest.h"
#include "visual/PictureBox.h"
#include "visual/Shape.h"

namespace phial::test
{

namespace
{

/// A widget that notes what the model reports.
class NotingPeer final : public ControlPeer
{
public:
    explicit NotingPeer(Control& control) : control_(control) { control.frame().peer(this); }
    ~NotingPeer() override { control_.frame().peer(nullptr); }
    NotingPeer(const NotingPeer&) = delete;
    NotingPeer& operator=(const NotingPeer&) = delete;

    void modelChanged(ControlAspect aspect) override { heard.push_back(aspect); }
    long heardOf(ControlAspect aspect) const { return std::ranges::count(heard, aspect); }

    std::vector<ControlAspect> heard;

private:
    Control& control_;
};

/// A painted control that notes what it lives through.
class Diary final : public UserControl
{
public:
    explicit Diary(std::vector<std::string>& pages) : pages_(pages) {}

    StringView typeName() const override { return u"ctl_Diary"; }
    MemberTable members() const override { return {}; }
    ControlFrame& frame() override { return frame_; }
    PaintSurface& surface() override { return surface_; }
    void initProperties() override { pages_.emplace_back("init"); }
    void shown() override { pages_.emplace_back("shown"); }
    void hidden() override { pages_.emplace_back("hidden"); }
    void ended() override { pages_.emplace_back("ended"); }
    void paint() override {}

private:
    std::vector<std::string>& pages_;
    ControlFrame frame_{*this};
    PaintSurface surface_{*this};
};

class PaintedControls : public FormTest
{
protected:
    void SetUp() override { box->Move(0, 0, 300, 150); } // 20 by 10 pixels

    std::string drawn(Control& control) { return outside.visual().drawing(control); }

    std::shared_ptr<PictureBox> box = form->add<PictureBox>(u"pic_Test");
};

TEST_F(PaintedControls, ImageHasTheSizeOfTheControl)
{
    const PicturePtr image = box->surface().image(1);
    EXPECT_EQ(image->size(), (PixelSize{20, 10}));
    EXPECT_EQ(box->surface().image(1), image) << "made once";
    box->Width(600);
    EXPECT_EQ(box->surface().image(1)->Width(), 40);
}

TEST_F(PaintedControls, AnImageOfOnePartIsAsLargeAsThatAndDrawnFromItsCorner)
{
    box->AutoRedraw(false);
    box->Height(15 * 100'000); // of which no image could be made
    connections += box->Paint.connect([this] {
        log.push_back("paint from " + std::to_string(static_cast<int>(box->PaintedPart().top)));
        box->device().Line(0, 0, 5, 5, QBColor(12));
    });
    box->PaintedPart(PixelRectangle{0, 500, 20, 10});
    EXPECT_EQ(box->surface().image(1)->size(), (PixelSize{20, 10}));
    EXPECT_EQ(drawn(*box), "clear #F0F0F0\nline 0,0 - 5,5 #FF0000\n");
    box->PaintedPart(PixelRectangle{0, 510, 20, 10});
    box->PaintedPart(PixelRectangle{0, 510, 20, 10});
    box->surface().image(1);
    EXPECT_THAT(log, ElementsAre("paint from 500", "paint from 510"));
    EXPECT_TRUE(box->surface().hits({1, 90'000})) << "the whole box is still pressed";
    box->Height(150);
    box->PaintedPart(std::nullopt);
    EXPECT_EQ(box->surface().image(1)->size(), (PixelSize{20, 10}));
}

TEST_F(PaintedControls, APartShowsItsShareOfPictureAndBorder)
{
    box->AutoRedraw(false);
    box->border(true);
    box->Picture(std::make_shared<Picture>(PixelSize{20, 10}));
    box->PaintedPart(PixelRectangle{5, 4, 10, 5});
    EXPECT_THAT(drawn(*box), ::testing::HasSubstr("to -5,-4 20x10\nbox -5,-4 20x10 line"));
}

TEST_F(PaintedControls, ImageIsRemadeAtAnotherPixelRatio)
{
    const PicturePtr image = box->surface().image(1);
    EXPECT_NE(box->surface().image(1.5), image);
}

TEST_F(PaintedControls, WhatIsDrawnIsReportedOnceUntilItIsFetched)
{
    NotingPeer peer(*box);
    box->surface().image(1);
    box->device().PSet(1, 1);
    box->device().PSet(2, 2);
    EXPECT_EQ(peer.heardOf(ControlAspect::Picture), 1);
    box->surface().image(1);
    box->device().PSet(3, 3);
    EXPECT_EQ(peer.heardOf(ControlAspect::Picture), 2);
}

/// Notes which part has changed whenever the model reports one.
class PartPeer final : public ControlPeer
{
public:
    explicit PartPeer(UserControl& control) : control_(control) { control.frame().peer(this); }
    ~PartPeer() override { control_.frame().peer(nullptr); }
    PartPeer(const PartPeer&) = delete;
    PartPeer& operator=(const PartPeer&) = delete;

    void modelChanged(ControlAspect aspect) override
    {
        if (aspect == ControlAspect::Picture) {
            changed.push_back(control_.surface().changedPart());
        }
    }

    std::vector<PixelRectangle> changed;

private:
    UserControl& control_;
};

const PixelRectangle AllOfTheBox{0, 0, 20, 10};

TEST_F(PaintedControls, OnlyThePartThatIsDrawnInIsReported)
{
    box->surface().image(1);
    PartPeer peer(*box);
    const PixelRectangle one{2, 3, 4, 5};
    const PixelRectangle other{8, 0, 2, 2};
    box->surface().drawWithin(one, [&] { box->device().Line(2, 3, 5, 7, QBColor(12)); });
    box->surface().drawWithin(other, [&] { box->device().Line(8, 0, 9, 1, QBColor(12)); });
    box->surface().drawWithin({0, 0, 1, 1}, [] {}); // nothing was drawn
    EXPECT_THAT(peer.changed, ElementsAre(one, other)) << "each one, fetched or not";
    box->device().Cls();
    box->surface().drawWithin(one, [&] { box->device().Line(2, 3, 5, 7, QBColor(12)); });
    EXPECT_THAT(peer.changed, ElementsAre(one, other, AllOfTheBox)) << "all of it has been told";
}

TEST_F(PaintedControls, AllOfItHasChangedWhenAPartWasDrawnAndTheRestIsPaintedAnew)
{
    box->AutoRedraw(false);
    box->surface().image(1);
    PartPeer peer(*box);
    box->surface().drawWithin({1, 1, 2, 2}, [&] {
        box->device().Line(1, 1, 2, 2, QBColor(12));
        box->surface().invalidate();
    });
    EXPECT_THAT(peer.changed, ElementsAre(AllOfTheBox));
    EXPECT_EQ(box->surface().changedPart(), AllOfTheBox) << "asked for at another time";
}

TEST_F(PaintedControls, DrawingInAPartThatFailsHasChangedEverything)
{
    box->surface().image(1);
    PartPeer peer(*box);
    const PixelRectangle part{1, 1, 2, 2};
    EXPECT_RAISES(box->surface().drawWithin(part, [] { throw RuntimeError(ErrorNumber::InvalidArgument); }),
                  InvalidArgument);
    box->surface().image(1);
    box->surface().drawWithin(part, [&] { box->device().Line(1, 1, 2, 2, QBColor(12)); });
    EXPECT_THAT(peer.changed, ElementsAre(AllOfTheBox, part));
}

TEST_F(PaintedControls, WhatIsDrawnLaterIsToldAtOnceAndDrawnOnce)
{
    box->surface().image(1);
    PartPeer peer(*box);
    const PixelRectangle one{2, 3, 4, 5};
    const PixelRectangle other{8, 0, 2, 2};
    std::vector<int> drawings;
    box->surface().drawLater(one, [&] { drawings.push_back(1); });
    box->surface().drawLater(other, [&] {
        drawings.push_back(2);
        box->device().Line(2, 3, 9, 7, QBColor(12));
    });
    EXPECT_THAT(peer.changed, ElementsAre(one, other));
    EXPECT_THAT(drawings, IsEmpty());
    box->surface().image(1);
    box->surface().image(1);
    EXPECT_THAT(drawings, ElementsAre(2)) << "the last one draws for both";
    EXPECT_THAT(peer.changed, ElementsAre(one, other)) << "what was told has been drawn";
}

TEST_F(PaintedControls, NothingIsDrawnLaterUponWhatIsPaintedAnew)
{
    box->AutoRedraw(false);
    box->surface().image(1);
    PartPeer peer(*box);
    int drawings = 0;
    box->surface().invalidate();
    box->surface().drawLater({2, 3, 4, 5}, [&] { ++drawings; });
    box->surface().image(1);
    EXPECT_EQ(drawings, 0);
    EXPECT_THAT(peer.changed, ElementsAre(AllOfTheBox)) << "which is told once";
    box->surface().drawLater({2, 3, 4, 5}, [&] { ++drawings; });
    box->surface().image(2);
    EXPECT_EQ(drawings, 0) << "painted at another ratio";
}

TEST_F(PaintedControls, DrawingLaterThatFailsIsNotTriedAgain)
{
    box->surface().image(1);
    box->surface().drawLater({1, 1, 2, 2}, [] { throw RuntimeError(ErrorNumber::InvalidArgument); });
    EXPECT_RAISES(box->surface().image(1), InvalidArgument);
    PartPeer peer(*box);
    EXPECT_NO_THROW(box->surface().image(1));
    box->device().Line(1, 1, 2, 2, QBColor(12));
    EXPECT_THAT(peer.changed, ElementsAre(AllOfTheBox)) << "what is drawn after it is told";
}

TEST_F(PaintedControls, AChangedPartCountsFromTheControlsCornerWhereOneSectionIsShown)
{
    box->AutoRedraw(false);
    box->Height(15 * 1000);
    box->PaintedPart(PixelRectangle{0, 500, 20, 10});
    box->surface().image(1);
    PartPeer peer(*box);
    box->surface().drawWithin({2, 3, 4, 5}, [&] { box->device().Line(2, 3, 5, 7, QBColor(12)); });
    EXPECT_THAT(peer.changed, ElementsAre(PixelRectangle{2, 503, 4, 5}));
}

TEST_F(PaintedControls, AnotherSetOfColoursPaintsWhatIsShownAnew)
{
    box->AutoRedraw(false);
    box->BackColor(Palette::Ground);
    connections += box->Paint.connect([this] {
        log.emplace_back("paint");
        box->device().Line(0, 0, 5, 5, Palette::Ink);
    });
    EXPECT_EQ(drawn(*box), "clear #F6F9FC\nline 0,0 - 5,5 #1C2836\n");
    coreTheme().SetColours(ColourSet::Dark);
    EXPECT_THAT(drawn(*box), ::testing::EndsWith("clear #0F1C29\nline 0,0 - 5,5 #EDF3F8\n"));
    coreTheme().SetColours(ColourSet::HighContrast);
    EXPECT_THAT(drawn(*box), ::testing::EndsWith("clear #000000\nline 0,0 - 5,5 #FFFFFF\n"));
    box->surface().image(1);
    EXPECT_THAT(log, ElementsAre("paint", "paint", "paint")) << "once a set";
}

TEST_F(PaintedControls, AnotherSetOfColoursLeavesWhatAProgramHasDrawn)
{
    box->BackColor(Palette::Ground);
    EXPECT_EQ(drawn(*box), "clear #F6F9FC\n");
    coreTheme().SetColours(ColourSet::Dark);
    EXPECT_THAT(drawn(*box), ::testing::EndsWith("clear #0F1C29\n")) << "nothing has been drawn yet";
    box->device().PSet(1, 1, Palette::Ink);
    const std::string before = drawn(*box);
    coreTheme().SetColours(ColourSet::Light);
    EXPECT_EQ(drawn(*box), before);
    box->Cls();
    coreTheme().SetColours(ColourSet::Dark);
    EXPECT_THAT(drawn(*box), ::testing::EndsWith("clear #0F1C29\n")) << "nothing is drawn any more";
}

TEST_F(PaintedControls, DrawingSurvivesWhenTheImageIsRemade)
{
    box->device().Line(2, 2, 5, 5, QBColor(12), LineShape::Filled);
    box->Width(600);
    EXPECT_EQ(box->device().Point(3, 3), QBColor(12));
    box->surface().image(2);
    EXPECT_EQ(box->device().Point(3, 3), QBColor(12));
}

TEST_F(PaintedControls, NewBackgroundClearsAndWhatIsDrawnThenStays)
{
    box->device().PSet(1, 1, QBColor(12));
    box->BackColor(QBColor(9));
    box->device().PSet(2, 2, QBColor(10));
    box->surface().image(1);
    EXPECT_EQ(box->device().Point(1, 1), QBColor(9));
    EXPECT_EQ(box->device().Point(2, 2), QBColor(10));
}

TEST_F(PaintedControls, WithoutAutoRedrawTheControlPaintsAnew)
{
    box->AutoRedraw(false);
    connections += box->Paint.connect([this] {
        log.emplace_back("paint");
        box->device().Line(0, 0, 5, 5, QBColor(12));
    });
    box->surface().image(1);
    box->surface().image(1);
    EXPECT_THAT(log, ElementsAre("paint"));
    box->Refresh();
    EXPECT_EQ(drawn(*box), "clear #F0F0F0\nline 0,0 - 5,5 #FF0000\n"
                           "clear #F0F0F0\nline 0,0 - 5,5 #FF0000\n");
    EXPECT_EQ(log.size(), 2U);
}

TEST_F(PaintedControls, OutOfSightItHasNoImageUnlessItKeepsWhatIsDrawn)
{
    form->Show();
    for (const bool retains : {false, true}) {
        box->AutoRedraw(retains);
        const std::weak_ptr<Picture> image = box->surface().image(1);
        box->Visible(false);
        EXPECT_EQ(image.expired(), !retains);
        box->Visible(true);
        EXPECT_EQ(box->surface().image(1)->size(), (PixelSize{20, 10}));
    }
}

TEST_F(PaintedControls, PictureLiesBelowWhatIsDrawn)
{
    box->Picture(std::make_shared<Picture>(PixelSize{4, 4}));
    box->border(true);
    EXPECT_EQ(drawn(*box), "clear #F0F0F0\n"
                           "image 4x4 from 0,0 4x4 to 0,0 4x4\n"
                           "box 0,0 20x10 line #A0A0A0\n");
}

TEST_F(PaintedControls, AutoSizeTakesTheSizeOfThePicture)
{
    logs(box->Resize, "resize");
    box->AutoSize(true);
    box->Picture(std::make_shared<Picture>(PixelSize{32, 16}));
    EXPECT_EQ(box->Width(), 480);
    EXPECT_EQ(box->Height(), 240);
    EXPECT_THAT(log, ElementsAre("resize"));
}

TEST_F(PaintedControls, AClickOnAHoleOfTheMaskGoesToWhatLiesBelow)
{
    const auto above = form->add<PictureBox>(u"pic_Above");
    above->Move(0, 0, 300, 150);
    above->device().MaskColor(QBColor(13));
    above->device().BackColor(QBColor(13));
    above->Cls();
    above->device().Line(0, 0, 4, 9, QBColor(12), LineShape::Filled);
    above->MaskPicture(above->Image());
    logs(above->Click, "above");
    logs(box->Click, "below");
    headless::click(*above, 2, 2);
    headless::click(*above, 10, 2);
    EXPECT_THAT(log, ElementsAre("above", "below"));
}

TEST_F(PaintedControls, AClickGoesThroughAPlainFigure)
{
    const auto marker = form->add<Shape>(u"shp_Avatar");
    marker->Move(0, 0, 300, 150);
    logs(box->Click, "below");
    headless::click(*marker, 3, 3);
    EXPECT_THAT(log, ElementsAre("below"));
}

TEST_F(PaintedControls, WithoutAMaskAClickCountsEverywhereInside)
{
    box->transparent(true);
    EXPECT_TRUE(box->surface().hits({19, 9}));
    EXPECT_FALSE(box->surface().hits({20, 9}));
}

TEST_F(PaintedControls, UnitOfTheFieldIsThatOfTheControlsWithin)
{
    box->ScaleMode(ScaleUnit::Twips);
    const auto inner = form->add<Label>(u"lab_Inner", box->container());
    inner->Move(30, 30, 150, 75);
    EXPECT_EQ(inner->frame().pixelRectangle(), (PixelRectangle{2, 2, 10, 5}));
    EXPECT_EQ(box->device().ScaleWidth(), 300);
}

TEST_F(PaintedControls, PointerAndKeysBecomeEvents)
{
    connections += box->MouseDown.connect([this](const PointerEvent& event) {
        log.push_back("down " + std::to_string(static_cast<int>(event.X)));
    });
    logs(box->Click, "click");
    logs(box->DblClick, "double");
    headless::doubleClick(*box);
    EXPECT_THAT(log, ElementsAre("down 10", "click", "double"));
    box->Enabled(false);
    headless::click(*box);
    EXPECT_EQ(log.size(), 3U);
}

TEST_F(PaintedControls, DropsBecomeEvents)
{
    const auto source = form->add<Label>(u"lab_Source");
    connections += box->DragDrop.connect([this](Control& dropped, double x, double y) {
        log.push_back(toUtf8(dropped.NAME()) + " " + std::to_string(static_cast<int>(x + y)));
    });
    connections += box->TextDropped.connect([this](const String& text) { log.push_back(toUtf8(text)); });
    box->dragDrop(*source, 3, 4);
    box->textDropped(u"H2O");
    EXPECT_THAT(log, ElementsAre("lab_Source 7", "H2O"));
}

TEST_F(PaintedControls, HearOfComingIntoSightAndGoing)
{
    const auto diary = makeControl<Diary>(log);
    form->add(diary, box->container());
    EXPECT_THAT(log, ElementsAre("init"));
    form->Show();
    box->Visible(false);
    diary->Visible(false);
    box->Visible(true);
    diary->Visible(true);
    form->Hide();
    EXPECT_THAT(log, ElementsAre("init", "shown", "hidden", "shown", "hidden"));
}

TEST_F(PaintedControls, EndWhenTheyAreTakenAwayOrTheirFormEnds)
{
    const auto removed = makeControl<Diary>(log);
    form->add(removed);
    form->Show();
    form->remove(*removed);
    EXPECT_THAT(log, ElementsAre("init", "shown", "hidden", "ended"));
    log.clear();
    auto other = std::make_shared<Form>(u"frm_Other");
    other->add(makeControl<Diary>(log));
    other.reset();
    EXPECT_THAT(log, ElementsAre("init", "ended"));
}

TEST_F(PaintedControls, PeerHearsEachChangeOfTheFrameOnce)
{
    NotingPeer peer(*box);
    box->Left(15);
    box->Left(15);
    box->Visible(false);
    box->frame().ToolTipText(u"Hilfe");
    EXPECT_THAT(peer.heard,
                ElementsAre(ControlAspect::Geometry, ControlAspect::Visibility, ControlAspect::ToolTip));
}

} // namespace

} // namespace phial::test
