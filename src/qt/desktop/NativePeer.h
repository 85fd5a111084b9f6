#pragma once

#include "visual/Control.h"

#include <QPointer>
#include <QWidget>

#include <functional>
#include <vector>

class QKeyEvent;

namespace phial::qt
{

/// Joins a control's model to one of the toolkit's own widgets. It belongs to the widget and keeps the
/// control alive.
///
/// A setter of the model ends in one of the `show…` functions, and whatever the widget then says of itself is
/// an echo that goes no further. What the user does comes through the widget's signals, which a subclass
/// hands to `input`, and through the keys, presses and focus that this class takes from the widget and the
/// widgets within.
class NativePeer : public QObject, public ControlPeer
{
public:
    ~NativePeer() override;

    void modelChanged(ControlAspect aspect) override;

protected:
    /// `widget` is the one that takes the control's place.
    NativePeer(ControlPtr control, QWidget& widget);
    /// Shows the model's present state; called last by each subclass's constructor.
    void begin();
    /// Takes keys, presses and focus from a widget that the user reaches.
    void watch(QWidget& widget);

    // Each shows one side of the model, of which the frame's part is shown already.
    virtual void showStyle() {}
    virtual void showText() {}
    virtual void showSelection() {}
    virtual void showItems() {}
    /// Range and value.
    virtual void showRange() {}
    virtual void showPicture() {}
    virtual void showNames() {}
    /// The widget has its new place.
    virtual void showPlace() {}

    /// Runs what the user's input leads to, unless it is an echo or the control has left its window.
    template <typename Handler>
    void input(Handler&& handler);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Watched {
        QPointer<QWidget> widget;
        Qt::FocusPolicy ownPolicy;
    };

    void show(ControlAspect aspect);
    void showReach();
    bool isLinked() const;
    bool filterKey(QWidget& widget, QKeyEvent& event);
    void filterPress(const QEvent& event);
    void run(const std::function<void()>& handler);

    ControlPtr control_;
    QWidget& widget_;
    std::vector<Watched> watched_;
    bool showing_ = false;
    bool resending_ = false;
};

template <typename Handler>
void NativePeer::input(Handler&& handler)
{
    if (!showing_ && isLinked()) {
        run(handler);
    }
}

} // namespace phial::qt
