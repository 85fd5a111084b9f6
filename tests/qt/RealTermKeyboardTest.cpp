#include "DesktopRun.h"
#include "UserDesk.h"
#include "app/cls_App.h"
#include "app/cls_AppDialog.h"
#include "app/cls_AppURL.h"
#include "app/cls_Language.h"
#include "core/NativePath.h"
#include "dialogs/ctl_Keys.h"
#include "periodic/ctl_PSE.h"
#include "support/Places.h"
#include "term/clt_TermInput.h"

#include <algorithm>
#include <gtest/gtest.h>

/// The keyboards for terms on a real desktop, with a window manager, a mouse and a keyboard.
namespace phial::qt
{

namespace
{

class RealTermKeyboard : public DesktopRun
{
protected:
    RealTermKeyboard() : DesktopRun(std::make_shared<DesktopDisplay>())
    {
        LNG()->CURRENT(ID_Language_German);
        QVAPP()->URL()->ROOT(systemPath(test::treeFolder()) + u"\\");
        opener_->ScaleMode(ScaleUnit::Pixels);
        opener_->innerSize({300, 150});
        opener_->Move(400 * TwipsPerPixel, 40 * TwipsPerPixel);
        term_->Move(20, 20, 200, 36);
        term_->Term({});
    }
    ~RealTermKeyboard() override { opener_->discard(); }

    void showOpener()
    {
        desk_.moveTo({10, 300});
        opener_->Show();
        ASSERT_TRUE(eventually([&] { return widgetOf(*opener_).isActiveWindow(); }));
        runFor(100); // the window manager has had its last word
    }
    /// Opens a keyboard as a program does, and lets a user play with it; gives whether it was confirmed.
    template <typename Ask>
    bool asked(Ask ask, const std::function<void()>& user)
    {
        QTimer::singleShot(0, qApp, [&] {
            ASSERT_TRUE(eventually([&] { return keyboard() && window().isActiveWindow(); }));
            runFor(100);
            ASSERT_TRUE(keyboard()) << "it has closed by itself";
            user();
            if (!eventually([&] { return !keyboard(); })) {
                ADD_FAILURE() << "it is still open";
                keyboard()->Unload();
            }
        });
        return ask();
    }
    bool termAsked(const std::function<void()>& user)
    {
        return asked([&] { return QVAPP()->DIALOG()->TERMINPUT(term_, u"Reaktion"); }, user);
    }
    bool elementsAsked(const std::function<void()>& user)
    {
        return asked([&] { return QVAPP()->DIALOG()->PSEINPUT(term_, u"Salz"); }, user);
    }
    static std::shared_ptr<Form> keyboard()
    {
        const Forms& forms = visualHost().forms();
        for (std::size_t at = 0; at < forms.Count(); ++at) {
            if (forms.Item(at)->NAME().starts_with(u"frm_DialogKeyboard") && forms.Item(at)->Visible()) {
                return forms.Item(at);
            }
        }
        return nullptr;
    }
    static QWidget& window() { return widgetOf(*keyboard()); }
    static QPoint placeOn(Control& part, const PixelRectangle& area)
    {
        const QPoint middle = QPointF(area.left + area.width / 2, area.top + area.height / 2).toPoint();
        return window().pos() + widgetOf(part).mapTo(&window(), middle);
    }
    /// Each tap is over before the pointer goes on, which would be a drag.
    void tap(std::initializer_list<std::int32_t> indices)
    {
        for (const std::int32_t index : indices) {
            bool isOver = false;
            const auto keys = keyboard()->control<ctl_Keys>(u"ctl_Keys");
            const Connection released = keys->RELEASED.connect([&](std::int32_t) { isOver = true; });
            desk_.click(placeOn(*keys, keys->areaOf(index)));
            EXPECT_TRUE(eventually([&] { return isOver; }));
        }
    }
    void tapElement(StringView symbol)
    {
        const auto table = keyboard()->control<ctl_PSE>(u"ctl_PSE");
        const auto parts = table->parts();
        const auto part = std::ranges::find_if(parts, [&](const NamedPart& each) {
            return each.name.find(u", " + String(symbol) + u",") != String::npos;
        });
        ASSERT_NE(part, parts.end());
        desk_.click(placeOn(*table, part->area));
    }
    static String typed() { return keyboard()->control<clt_TermInput>(u"txt_Input")->Term(); }
    static void expectTyped(StringView term)
    {
        EXPECT_TRUE(eventually([&] { return typed() == term; })) << toUtf8(typed());
    }

    static constexpr std::int32_t Ok = 11;
    static constexpr std::int32_t LetterA = 26;
    static constexpr std::int32_t Shift = 37;
    static constexpr std::int32_t LetterN = 43;

    UserDesk desk_;
    std::shared_ptr<Form> opener_ = std::make_shared<Form>(u"frm_Opener");
    std::shared_ptr<clt_TermInput> term_ = opener_->add<clt_TermInput>(u"trm_Answer");
};

TEST_F(RealTermKeyboard, TypesByItsKeysAndByTheDesk)
{
    showOpener();
    EXPECT_TRUE(termAsked([&] {
        tap({LetterN, Shift, LetterA});
        expectTyped(u"Na");
        desk_.strike({UserDesk::Five});
        expectTyped(u"Na5");
        desk_.strike({UserDesk::Return});
    }));
    EXPECT_EQ(term_->Term(), u"Na5");
    EXPECT_FALSE(termAsked([&] {
        tap({LetterN});
        desk_.strike({UserDesk::Escape});
    }));
    EXPECT_EQ(term_->Term(), u"Na5");
}

TEST_F(RealTermKeyboard, ElementsAreTappedAndCountedUp)
{
    showOpener();
    EXPECT_TRUE(elementsAsked([&] {
        tapElement(u"H");
        expectTyped(u"H");
        tapElement(u"H");
        expectTyped(u"H2");
        tapElement(u"O");
        expectTyped(u"H2O");
        tap({Ok});
    }));
    EXPECT_EQ(term_->Term(), u"H2O");
}

TEST_F(RealTermKeyboard, ATapOnTheFormBelowConfirms)
{
    showOpener();
    EXPECT_TRUE(termAsked([&] {
        tap({LetterN});
        expectTyped(u"N");
        desk_.click(widgetOf(*opener_).mapToGlobal(QPoint(280, 10)));
    }));
    EXPECT_EQ(term_->Term(), u"N");
}

} // namespace

} // namespace phial::qt
