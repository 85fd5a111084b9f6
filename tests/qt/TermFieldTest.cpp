#include "DesktopSession.h"
#include "term/TermDraw.h"
#include "term/clt_TermInput.h"
#include "visual/TextBox.h"
#include "visual/VisualHost.h"

#include <QAccessible>
#include <QClipboard>
#include <QDropEvent>
#include <QMimeData>
#include <QTest>

#include <algorithm>
#include <utility>

using namespace phial;
using namespace phial::qt;

namespace
{

class TermFieldInWindow : public DesktopSession
{
protected:
    TermFieldInWindow()
    {
        form_->ScaleMode(ScaleUnit::Pixels);
        form_->innerSize({300, 200});
        field_->Move(20, 10, 200, 40);
        field_->Term(u"");
        form_->Show();
        field_->SetFocus();
    }
    ~TermFieldInWindow() override { form_->discard(); }

    QWidget& widget() { return widgetOf(*field_); }

    std::shared_ptr<Form> form_ = std::make_shared<Form>(u"frm_Test");
    std::shared_ptr<clt_TermInput> field_ = form_->add<clt_TermInput>(u"trm_Input");
};

TEST_F(TermFieldInWindow, TypesAnIonWithADeadCircumflex)
{
    QTest::keyClicks(&widget(), QStringLiteral("SO4"));
    QTest::sendKeyEvent(QTest::Click, &widget(), Qt::Key_Dead_Circumflex, QString(), Qt::NoModifier);
    QTest::keyClicks(&widget(), QStringLiteral("2-"));
    EXPECT_EQ(field_->Term(), u"SO4^2-");
    EXPECT_EQ(field_->CARET(), 6);
    QTest::keyClick(&widget(), Qt::Key_Left);
    QTest::keyClick(&widget(), Qt::Key_Delete);
    QTest::keyClicks(&widget(), QStringLiteral(".%#"));
    EXPECT_EQ(field_->Term(), u"SO4^2.%#");
}

TEST_F(TermFieldInWindow, IsReadByScreenReadersAsAFieldOfText)
{
    field_->frame().AccessibleName(u"Formel");
    QTest::keyClicks(&widget(), QStringLiteral("H2O"));
    QAccessibleInterface* face = QAccessible::queryAccessibleInterface(&widget());
    ASSERT_TRUE(face && face->textInterface());
    EXPECT_EQ(face->role(), QAccessible::EditableText);
    EXPECT_EQ(face->text(QAccessible::Name), QStringLiteral("Formel"));
    EXPECT_EQ(face->text(QAccessible::Value), QStringLiteral("H2O")) << "in which the caret has its place";
    EXPECT_EQ(face->text(QAccessible::Description), QStringLiteral("H zwei O"));
    field_->frame().HelpText(u"Eingabe bestätigt");
    EXPECT_EQ(face->text(QAccessible::Description), QStringLiteral("H zwei O, Eingabe bestätigt"));
    EXPECT_EQ(face->textInterface()->cursorPosition(), 3);
    EXPECT_TRUE(face->state().editable);
    field_->LOCKED(true);
    EXPECT_TRUE(face->state().readOnly);
}

TEST_F(TermFieldInWindow, IsNotCalledByWhatIsInIt)
{
    QTest::keyClicks(&widget(), QStringLiteral("H2O"));
    QAccessibleInterface* face = QAccessible::queryAccessibleInterface(&widget());
    EXPECT_EQ(face->text(QAccessible::Name), QString());
    QTest::keyClicks(&widget(), QStringLiteral("("));
    EXPECT_EQ(face->text(QAccessible::Description), QString()) << "what cannot be read is said as it stands";
}

TEST_F(TermFieldInWindow, ThePressedPlaceIsThatOfThePicture)
{
    field_->TEXTFONT()->Size(20);
    field_->Term(u"SO4^2-");
    const auto area = [&](std::int32_t caret) {
        field_->CARET(caret);
        return field_->frame().textEntry()->caretArea;
    };
    for (const std::int32_t caret : {0, 1, 2, 3, 6}) {
        const PixelRectangle place = area(caret);
        field_->CARET(0);
        QTest::mouseClick(&widget(), Qt::LeftButton, Qt::NoModifier,
                          QPoint(static_cast<int>(place.left), 20));
        EXPECT_EQ(field_->CARET(), caret);
    }
}

TEST_F(TermFieldInWindow, CopiesTextAndHtmlAndPastesBoth)
{
    field_->Term(u"SO4^2-");
    QTest::keyClick(&widget(), Qt::Key_C, Qt::ControlModifier);
    const QMimeData* content = QGuiApplication::clipboard()->mimeData();
    EXPECT_EQ(content->text(), QStringLiteral("SO\u2084\u00B2\u207B"));
    EXPECT_TRUE(content->html().contains(QStringLiteral("SO<sub>4</sub><sup>2-</sup>")));
    field_->Term(u"");
    QTest::keyClick(&widget(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(field_->Term(), u"SO4^2-");

    auto* other = new QMimeData;
    other->setHtml(QStringLiteral("<p>H<sub>2</sub>O</p>"));
    QGuiApplication::clipboard()->setMimeData(other);
    QTest::keyClick(&widget(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(field_->Term(), u"SO4^2-H2O");
    visualHost().clipboardText(u"Na");
    EXPECT_EQ(visualHost().clipboardHtml(), u"") << "of what was there before nothing is left";
}

TEST_F(TermFieldInWindow, TheCaretIsSeenInTheActiveWindowAlone)
{
    const auto isCaretSeen = [&] {
        const PicturePtr picture = field_->surface().image(1);
        const auto pixels = std::as_const(*picture).pixels();
        return std::ranges::any_of(pixels, [&](std::uint32_t pixel) { return pixel != pixels.front(); });
    };
    outside().display().blinksCaret(false);
    form_->focus(nullptr);
    field_->SetFocus();
    ASSERT_TRUE(eventually([&] { return widgetOf(*form_).isActiveWindow() && isCaretSeen(); }));
    const auto second = std::make_shared<Form>(u"frm_Second");
    second->Show();
    ASSERT_TRUE(eventually([&] { return !widgetOf(*form_).isActiveWindow(); }));
    EXPECT_TRUE(field_->frame().hasFocus());
    EXPECT_TRUE(eventually([&] { return !isCaretSeen(); }));
    second->Unload();
    widgetOf(*form_).activateWindow();
    EXPECT_TRUE(eventually(isCaretSeen));
}

TEST_F(TermFieldInWindow, ALockedFieldDoesNotLookAsIfItTookADrop)
{
    QMimeData content;
    content.setText(QStringLiteral("CO2"));
    const auto enters = [&] {
        QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &content, Qt::LeftButton, Qt::NoModifier);
        enter.setDropAction(Qt::CopyAction);
        enter.ignore();
        QApplication::sendEvent(&widget(), &enter);
        return enter.isAccepted() && enter.dropAction() == Qt::CopyAction;
    };
    EXPECT_TRUE(enters());
    field_->LOCKED(true);
    EXPECT_FALSE(enters());
    QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &content, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&widget(), &drop);
    EXPECT_EQ(field_->Term(), u"");
    field_->LOCKED(false);
    EXPECT_TRUE(enters());
}

TEST_F(TermFieldInWindow, LooksAsTermDrawDrawsItsTerm)
{
    for (const StringView term :
         {u"2KMnO4 + 5SO3^2- -> 2Mn^2+", u"2 (a+b)/(c|d) =^ \u03B1~~3*H2O", u"x§y2|z"}) {
        for (const double ratio : {1.0, 1.25, 2.0}) {
            field_->TEXTFONT()->Size(13);
            field_->TEXTALIGN(TEXTALIGN::MiddleLeft);
            field_->Move(20, 10, 400, 60);
            field_->Term(String(term));
            field_->CARET(0);
            const PicturePtr shown = field_->surface().image(ratio);
            const auto backend = visualHost().createSurface({400, 60}, ratio);
            DrawDevice device(backend);
            device.font(field_->TEXTFONT()->traits());
            device.BackColor(field_->BACKCOLOR());
            device.ForeColor(field_->TEXTCOLOR());
            device.Cls();
            TermDraw(device, term, 0, 30, TEXTALIGN::MiddleLeft);
            EXPECT_TRUE(std::ranges::equal(std::as_const(*shown).pixels(),
                                           std::as_const(*backend->picture()).pixels()))
                << toUtf8(term) << " at " << ratio;
        }
    }
}

TEST_F(TermFieldInWindow, TextDroppedFromOutsideBecomesTheTerm)
{
    QMimeData content;
    content.setText(QStringLiteral("CO\u2082\n"));
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &content, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&widget(), &enter);
    QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &content, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&widget(), &drop);
    EXPECT_EQ(field_->Term(), u"CO2");
}

/// Its handlers take the field away, with its last reference, or its form as well.
class TermFieldGone : public TermFieldInWindow, public testing::WithParamInterface<bool>
{
protected:
    TermFieldGone()
    {
        field_->Term(u"H2O");
        field_->OLEDRAGAUTO(true);
    }
    ~TermFieldGone() override
    {
        EXPECT_EQ(taken_, 1);
        connections_.clear();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_TRUE(watched_.expired());
    }

    template <typename... Args>
    void takeAwayAt(Event<Args...>& event)
    {
        connections_ += event.connect([this](const Args&...) {
            ++taken_;
            if (GetParam()) {
                form_->Unload();
            }
            form_->remove(*field_);
            field_.reset();
        });
    }

    int taken_ = 0;
    Connections connections_;
    std::weak_ptr<clt_TermInput> watched_ = field_;
};

TEST_P(TermFieldGone, AtAKey)
{
    takeAwayAt(field_->CHANGED);
    QTest::keyClick(&widget(), Qt::Key_A);
}

TEST_P(TermFieldGone, AtReturn)
{
    takeAwayAt(field_->ENTER);
    QTest::keyClick(&widget(), Qt::Key_Return);
}

TEST_P(TermFieldGone, AtAPress)
{
    takeAwayAt(field_->MouseDown);
    QTest::mouseClick(&widget(), Qt::LeftButton);
}

TEST_P(TermFieldGone, AtTheEndOfAPress)
{
    takeAwayAt(field_->MouseUp);
    QTest::mouseClick(&widget(), Qt::LeftButton);
}

TEST_P(TermFieldGone, AtAClick)
{
    takeAwayAt(field_->CLICK);
    QTest::mouseClick(&widget(), Qt::LeftButton);
}

TEST_P(TermFieldGone, AtADrop)
{
    takeAwayAt(field_->CHANGED);
    QMimeData content;
    content.setText(QStringLiteral("CO2"));
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &content, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&widget(), &enter);
    QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &content, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&widget(), &drop);
}

TEST_P(TermFieldGone, WhenAnotherFieldTakesTheFocus)
{
    const auto other = form_->add<TextBox>(u"txt_Other");
    other->Move(20, 80, 200, 40);
    takeAwayAt(other->GotFocus);
    other->SetFocus();
}

INSTANTIATE_TEST_SUITE_P(Taken, TermFieldGone, testing::Bool(),
                         [](const auto& instance) { return instance.param ? "WithItsForm" : "Alone"; });

} // namespace
