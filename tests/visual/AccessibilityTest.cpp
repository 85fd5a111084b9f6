#include "FormTest.h"
#include "visual/ControlCopy.h"
#include "visual/PictureBox.h"

using namespace phial;
using namespace phial::test;

namespace
{

/// A control's widget that notes which sides of the model change.
class NotingPeer final : public ControlPeer
{
public:
    explicit NotingPeer(ControlFrame& frame) : frame_(frame) { frame_.peer(this); }
    ~NotingPeer() override { frame_.peer(nullptr); }
    NotingPeer(const NotingPeer&) = delete;
    NotingPeer& operator=(const NotingPeer&) = delete;

    void modelChanged(ControlAspect aspect) override { told.push_back(aspect); }
    std::vector<ControlAspect> told;

private:
    ControlFrame& frame_;
};

class AccessibilityTest : public FormTest
{
protected:
    std::shared_ptr<PictureBox> key = form->add<PictureBox>(u"pic_Key");
    ControlFrame& frame = key->frame();
};

TEST_F(AccessibilityTest, AFrameSaysWhatItsControlIsAndHowItStands)
{
    EXPECT_EQ(frame.AccessibleRole(), std::nullopt);
    EXPECT_EQ(frame.AccessibleState(), PartState());
    const NotingPeer peer(frame);
    for (int time = 0; time < 2; ++time) {
        frame.AccessibleRole(PartRole::Button);
        frame.AccessibleState({.pressed = true});
    }
    EXPECT_THAT(peer.told, ElementsAre(ControlAspect::Accessibility, ControlAspect::Accessibility))
        << "what has not changed is not told";
    EXPECT_EQ(frame.AccessibleRole(), PartRole::Button);
    EXPECT_TRUE(frame.AccessibleState().pressed);
}

TEST_F(AccessibilityTest, TheSameTextIsAnnouncedAgain)
{
    const NotingPeer peer(frame);
    frame.announce(u"Richtig!");
    frame.announce(u"Richtig!");
    EXPECT_THAT(peer.told, ElementsAre(ControlAspect::Announcement, ControlAspect::Announcement));
    EXPECT_EQ(frame.announcement(), u"Richtig!");
}

TEST_F(AccessibilityTest, ACopyIsReachedAndReadAsItsTemplate)
{
    frame.AccessibleRole(PartRole::Button);
    frame.takesTouch(true);
    frame.ownKeyboard(true);
    PictureBox copy;
    copyControl(*key, copy);
    EXPECT_EQ(copy.frame().AccessibleRole(), PartRole::Button);
    EXPECT_TRUE(copy.frame().takesTouch());
    EXPECT_TRUE(copy.frame().ownKeyboard());
}

TEST_F(AccessibilityTest, ItsWidgetHearsOfTouchAndKeyboardOnce)
{
    const NotingPeer peer(frame);
    for (int time = 0; time < 2; ++time) {
        frame.takesTouch(true);
        frame.ownKeyboard(true);
    }
    EXPECT_THAT(peer.told, ElementsAre(ControlAspect::Touch, ControlAspect::TextEntry));
}

} // namespace
