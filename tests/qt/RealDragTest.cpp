#include "DesktopRun.h"
#include "UserDesk.h"
#include "term/clt_TermInput.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QPointer>
#include <QTimer>

#include <functional>

/// Drag and drop on a real desktop, whose loop runs within the move that has begun it.
namespace phial::qt
{

namespace
{

/// Acts when a drag comes to a widget.
class DragWatch final : public QObject
{
public:
    explicit DragWatch(std::function<void()> act) : act_(std::move(act)) { qApp->installEventFilter(this); }

private:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::DragEnter && watched->isWidgetType() && act_) {
            QTimer::singleShot(0, this, std::exchange(act_, nullptr));
        }
        return false;
    }

    std::function<void()> act_;
};

class RealDrag : public DesktopRun
{
protected:
    RealDrag()
    {
        form_->ScaleMode(ScaleUnit::Pixels);
        form_->innerSize({400, 300});
        field_->Move(20, 20, 200, 40);
        field_->Term(u"H2O");
        field_->OLEDRAGAUTO(true);
        other_->Move(20, 120, 200, 40);
        other_->Term(u"");
        form_->Show();
        EXPECT_TRUE(eventually([this] { return widgetOf(*form_).isActiveWindow(); }));
        runFor(100); // the window manager has had its last word
    }
    ~RealDrag() override { form_->discard(); }

    static QPoint middleOf(QWidget& widget) { return widget.mapToGlobal(widget.rect().center()); }
    /// Returns when the drag is over.
    void beginDrag()
    {
        const QPoint from = middleOf(widgetOf(*field_));
        desk_.moveTo(from);
        desk_.press();
        desk_.moveTo(from + QPoint(12, 0));
    }

    UserDesk desk_;
    std::shared_ptr<Form> form_ = std::make_shared<Form>(u"frm_Test");
    std::shared_ptr<clt_TermInput> field_ = form_->add<clt_TermInput>(u"trm_From");
    std::shared_ptr<clt_TermInput> other_ = form_->add<clt_TermInput>(u"trm_To");
};

TEST_F(RealDrag, BringsATermToAnotherField)
{
    const DragWatch watch([this] {
        desk_.moveTo(middleOf(widgetOf(*other_)));
        desk_.release();
    });
    beginDrag();
    EXPECT_TRUE(eventually([this] { return other_->Term() == u"H2O"; })) << toUtf8(other_->Term());
}

TEST_F(RealDrag, OutlivesTheFieldThatHasBegunIt)
{
    const QPointer<QWidget> gone(&widgetOf(*field_));
    bool wasGone = false;
    const DragWatch watch([&] {
        form_->remove(*field_);
        field_.reset();
        QTimer::singleShot(50, qApp, [&] {
            wasGone = !gone;
            desk_.moveTo(middleOf(widgetOf(*other_)));
            desk_.release();
        });
    });
    beginDrag();
    EXPECT_TRUE(wasGone) << "its widget has ended within the drag";
    EXPECT_TRUE(eventually([this] { return other_->Term() == u"H2O"; })) << "its text goes on";
}

} // namespace

} // namespace phial::qt
