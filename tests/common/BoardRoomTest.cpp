#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/sys_Global.h"
#include "common/FrameDesign.h"
#include "common/frm_LearningApp.h"
#include "headless/Hand.h"
#include "mascot/ctl_Bubble.h"
#include "mascot/ctl_DrAtom.h"
#include "support/AppSession.h"
#include "visual/Form.h"
#include "visual/PaintSurface.h"

#include <gtest/gtest.h>

namespace learning
{
namespace
{

using phial::PixelRectangle;
using phial::String;
using phial::StringView;

/// A board that has the focus and a use for keys, for Escape at times.
class TestBoard final : public phial::UserControl
{
public:
    TestBoard() : frame_(*this), surface_(*this) { frame_.canFocus(true); }

    StringView typeName() const override { return u"TestBoard"; }
    phial::MemberTable members() const override { return {}; }
    phial::ControlFrame& frame() override { return frame_; }
    phial::PaintSurface& surface() override { return surface_; }
    void resized() override { surface_.resized(); }
    void paint() override {}
    bool wantsKey(phial::Key key) const override { return holds || key != phial::Key::Escape; }
    void keyDown(phial::KeyEvent& event) override
    {
        if (event.is(phial::Key::Escape)) {
            holds = false;
        }
    }

    bool holds = false;

private:
    phial::ControlFrame frame_;
    phial::PaintSurface surface_;
};

constexpr AppTexts BoardTexts{.title = u"Brett|Board",
                              .question = u"Wohin?|Where?",
                              .introduction = u"Lege.|Put.",
                              .note = u"",
                              .waiting = u"Warte.|Wait.",
                              .solved = u"{1} von {2}|{1} of {2}",
                              .diploma = u"Diplom|Diploma",
                              .certificate = u""};
constexpr phial::ControlDesign BoardControls[] = {
    phial::design<TestBoard>(u"brd_Test", frame_design::BoardPlaces::Board).inside(u"pan_Task"),
    phial::design<phial::ctl_Label>(u"lab_BoardTitle", frame_design::BoardPlaces::Title).inside(u"pan_Task"),
};

class BoardApp final : public LearningApp
{
public:
    const AppTexts& texts() const override { return BoardTexts; }
    std::vector<LevelTitle> levels() const override { return {{u"Leicht", u"Easy"}}; }
    TaskRoom room() const override { return TaskRoom::Board; }
    std::span<const phial::ControlDesign> controls() const override { return BoardControls; }
    void attach(phial::Form& form) override { board_ = form.control<phial::Control>(u"brd_Test"); }
    int begin(std::size_t, const TaskChoice&) override { return 1; }
    void show(int) override {}
    String taskName() const override { return u"1"; }
    String answer() const override { return {}; }
    Judgement judge() override { return Judgement::Wrong; }
    void close() override {}
    phial::ControlPtr field() const override { return board_; }
    String solution() const override { return {}; }
    String unreadable() const override { return {}; }
    String hint() const override { return u"Tipp"; }
    void fill(Sample) override {}

private:
    phial::ControlPtr board_;
};

class BoardRoom : public phial::test::AppSession
{
protected:
    BoardRoom()
    {
        makeTree(u"installed\\");
        phial::QVAPP()->CONFIG()->IDENT(u"Board");
        outside.settings().prepare(phial::SettingsHive::LocalMachine, u"Software\\QV Brunnhof\\Phial\\Path",
                                   path(u"installed\\"));
        phial::QVAPP()->INIT(u"NONETWORK");
        app = std::make_unique<frm_LearningApp>(std::make_unique<BoardApp>());
        app->Show();
        phial::headless::type(form(), u"{enter}");
    }
    void TearDown() override
    {
        app.reset();
        AppSession::TearDown();
    }

    phial::Form& form() { return app->form(); }
    PixelRectangle areaOf(StringView name)
    {
        const auto found = form().control<phial::Control>(name);
        const auto corner = found->frame().originOnForm();
        const auto area = found->frame().pixelRectangle();
        return {corner.x, corner.y, area.width, area.height};
    }
    void size(phial::PixelSize inside)
    {
        form().Width(inside.width * phial::TwipsPerPixel);
        form().Height(inside.height * phial::TwipsPerPixel);
    }

    std::unique_ptr<frm_LearningApp> app;
};

bool overlap(const PixelRectangle& one, const PixelRectangle& other)
{
    return one.left < other.right() && other.left < one.right() && one.top < other.bottom() &&
           other.top < one.bottom();
}

// The drawer alone stands on the feedback while it is open.
TEST_F(BoardRoom, HasAPlaceOfItsOwnForEachControlOfAnAppWithADrawer)
{
    const auto& rows = frame_design::BesideBoard;
    for (const auto& one : rows) {
        for (const auto& other : rows) {
            const auto area = [](const auto& row) {
                return PixelRectangle{row.place.left, row.place.top, row.place.width, row.place.height};
            };
            EXPECT_TRUE(one.control == other.control || !overlap(area(one), area(other)) ||
                        one.control == u"ref_Drawer" || other.control == u"ref_Drawer")
                << phial::toUtf8(one.control) << " " << phial::toUtf8(other.control);
        }
    }
}

// This one has none, so that the button has left its room to the hint.
TEST_F(BoardRoom, HasAPlaceOfItsOwnForEachControl)
{
    EXPECT_FALSE(form().control<phial::Control>(u"but_Reference")->frame().isReachable());
    constexpr StringView Names[] = {u"brd_Test",    u"lab_BoardTitle", u"lab_Progress", u"dot_Round",
                                    u"but_Check",   u"but_Hint",       u"lab_Hint",     u"but_Stop",
                                    u"lab_Verdict", u"lab_Feedback"};
    const PixelRectangle page = areaOf(u"pan_Task");
    for (const StringView one : Names) {
        EXPECT_LE(page.left, areaOf(one).left);
        EXPECT_LE(areaOf(one).right(), page.right());
        EXPECT_LE(areaOf(one).bottom(), page.bottom());
        for (const StringView other : Names) {
            EXPECT_TRUE(one == other || !overlap(areaOf(one), areaOf(other)))
                << phial::toUtf8(one) << " " << phial::toUtf8(other);
        }
    }
}

TEST_F(BoardRoom, GivesTheCellsOfATable32PixelsOnASmallScreen)
{
    size({1024, 572});
    const PixelRectangle board = areaOf(u"brd_Test");
    EXPECT_GE((board.width / 19 - 1) * form().Zoom(), 32);
    EXPECT_GE((board.height / 12.5 - 1) * form().Zoom(), 32);
}

TEST_F(BoardRoom, IsNotCoveredByTheMascot)
{
    for (const phial::PixelSize inside : {phial::PixelSize{1024, 572}, {1366, 728}, {1920, 1050}}) {
        size(inside);
        const auto atom = form().control<phial::ctl_DrAtom>(u"atm_Mascot");
        EXPECT_TRUE(atom->frame().Visible()) << inside.width;
        EXPECT_LE(areaOf(u"atm_Mascot").right(), areaOf(u"brd_Test").left);
        EXPECT_LE(areaOf(u"bub_Mascot").right(), areaOf(u"brd_Test").left);
    }
}

TEST_F(BoardRoom, AsksForAWindowInWhichTheMascotHasRoomBesideTheBoard)
{
    size({app->wideWidth(), frame_design::Height});
    EXPECT_TRUE(form().control<phial::ctl_DrAtom>(u"atm_Mascot")->frame().Visible());
}

TEST_F(BoardRoom, LeavesEscapeToABoardThatWantsIt)
{
    const auto board = form().control<TestBoard>(u"brd_Test");
    board->holds = true;
    phial::headless::type(form(), u"{esc}");
    EXPECT_FALSE(board->holds);
    bool asked = false;
    outside.visual().onModal(u"frm_LeaveRound", [&](phial::Form& asking) {
        asked = true;
        asking.Unload();
    });
    phial::headless::type(form(), u"{esc}");
    EXPECT_TRUE(asked) << "the second one leaves the round";
}

TEST_F(BoardRoom, HasTheKeysOfTheFrameAllTheSame)
{
    phial::headless::type(form(), u"{f5}");
    EXPECT_EQ(form().control<phial::ctl_Label>(u"lab_Hint")->Caption(), u"Tipp");
}

} // namespace
} // namespace learning
