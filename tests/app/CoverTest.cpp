#include "app/AppTest.h"
#include "app/screen/frm_Fade.h"
#include "visual/Form.h"
#include "visual/VisualHost.h"

namespace phial
{

namespace
{

/// The cover form behind an embedded program.
class Cover : public AppTest
{
protected:
    std::shared_ptr<frm_Fade> cover() { return session->existingSharedForm<frm_Fade>(); }
    bool isCoverOpen() { return cover() && cover()->form().Visible(); }
};

TEST_F(Cover, IsNotShownInAnOrdinaryRun)
{
    start();
    EXPECT_EQ(cover(), nullptr);
}

TEST_F(Cover, FillsTheScreenAlmostSolidInAnEmbeddedRun)
{
    start(u"EMBEDDED");
    ASSERT_TRUE(isCoverOpen());
    const Form& form = cover()->form();
    EXPECT_EQ(form.WindowState(), WindowState::Maximized);
    EXPECT_EQ(form.BorderStyle(), BorderStyle::None);
    EXPECT_EQ(form.BackColor(), RGB(0, 106, 181));
    EXPECT_EQ(form.Caption(), u"Form1");
    EXPECT_EQ(form.controlCount(), 0U);
    EXPECT_FALSE(form.isModal());
    const std::vector<headless::Translucency> expected = {
        {form.hWnd(), 250, TranslucentMode::Opacity, Colour{0xFF00FFU}}};
    EXPECT_EQ(outside.windows().translucencies(), expected);
}

TEST_F(Cover, StaysBehindTheProgram)
{
    start(u"EMBEDDED");
    EXPECT_TRUE(cover()->form().backdrop());
    EXPECT_EQ(visualHost().screen().ActiveForm(), nullptr);
}

TEST_F(Cover, LetsTheActiveFormComeBackInFront)
{
    const auto own = std::make_shared<Form>(u"frm_Own");
    own->Show();
    start(u"EMBEDDED");
    EXPECT_TRUE(isCoverOpen());
    EXPECT_EQ(visualHost().screen().ActiveForm(), own);
    own->Unload();
}

TEST_F(Cover, LooksForItsParameterAmongThisRunsTokens)
{
    QVAPP()->CONFIG()->PARAMETERS()->Set(u"EMBEDDED", u"");
    start();
    EXPECT_EQ(cover(), nullptr);
}

TEST_F(Cover, IsUnloadedAtTheEnd)
{
    start(u"EMBEDDED");
    QVAPP()->DEINIT();
    EXPECT_FALSE(isCoverOpen());
    EXPECT_EQ(visualHost().forms().Count(), 0U);
}

TEST_F(Cover, DoesNotStopTheStartWhenItCannotBeShown)
{
    session.reset();
    Platform blind = outside.platform();
    blind.visual = nullptr;
    session.emplace(blind);
    start(u"EMBEDDED");
    EXPECT_EQ(currentFolder(), path(u"installed\\"));
}

} // namespace

} // namespace phial
