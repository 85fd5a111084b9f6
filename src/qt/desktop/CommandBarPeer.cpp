#include "qt/desktop/CommandBarPeer.h"

#include "qt/base/QtText.h"
#include "qt/desktop/ButtonFace.h"
#include "qt/desktop/PictureImage.h"
#include "qt/desktop/WidgetAspects.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

#include <algorithm>

namespace phial::qt
{

namespace
{

constexpr int Margin = 6;
constexpr int Spacing = 8;

// A bar as high as a finger needs has buttons as wide and large as that.
constexpr int TouchHeight = 48;
constexpr double TouchProportion = 2; // of a button's width to its height
constexpr double TouchTextSize = 11;  // points

void showPart(QWidget& widget, const CommandBarButton& part)
{
    widget.setToolTip(toQt(part.ToolTipText()));
    widget.setAccessibleDescription(toQt(part.Description()));
    widget.setEnabled(part.Enabled());
    widget.setVisible(part.Visible());
}

void showButton(QPushButton& widget, const CommandBarButton& button)
{
    widget.setText(buttonText(button.face()));
    widget.setIcon(iconOf(button.Picture()));
    showPart(widget, button);
}

void showPanel(QLabel& widget, const CommandBarButton& panel)
{
    widget.setText(toQt(panel.face()));
    showPart(widget, panel);
}

} // namespace

QWidget* CommandBarPeer::make(std::shared_ptr<CommandBar> model, QWidget& holder)
{
    auto* bar = new QWidget(&holder);
    markBar(*bar);
    new CommandBarPeer(std::move(model), *bar); // belongs to the bar
    return bar;
}

CommandBarPeer::CommandBarPeer(std::shared_ptr<CommandBar> model, QWidget& bar)
    : NativePeer(model, bar), model_(std::move(model)), bar_(bar), row_(new QHBoxLayout(&bar))
{
    row_->addStretch();
    begin();
}

void CommandBarPeer::showPlace()
{
    sizeButtons();
}

void CommandBarPeer::showItems()
{
    showPanels();
    if (buttons_.size() != static_cast<std::size_t>(model_->BUTTONS()->Count())) {
        makeButtons();
    }
    for (std::size_t at = 0; at < buttons_.size(); ++at) {
        showButton(*buttons_[at], *model_->BUTTONS()->Item(static_cast<std::int32_t>(at) + 1));
    }
    chooseFirst();
}

void CommandBarPeer::showPanels()
{
    const auto panels = model_->PANELS();
    while (panels_.size() > static_cast<std::size_t>(panels->Count())) {
        delete panels_.back();
        panels_.pop_back();
    }
    while (panels_.size() < static_cast<std::size_t>(panels->Count())) {
        auto* label = new QLabel(&bar_);
        label->setTextFormat(Qt::PlainText);
        row_->insertWidget(static_cast<int>(panels_.size()), label);
        panels_.push_back(label);
    }
    for (std::size_t at = 0; at < panels_.size(); ++at) {
        showPanel(*panels_[at], *panels->Item(static_cast<std::int32_t>(at) + 1));
    }
}

/// The focus that the bar gets goes to the button that the keyboard begins with.
void CommandBarPeer::chooseFirst()
{
    QPushButton* first = nullptr;
    for (std::size_t at = 0; at < buttons_.size(); ++at) {
        const auto button = model_->BUTTONS()->Item(static_cast<std::int32_t>(at) + 1);
        const bool canBePressed = button->Enabled() && button->Visible();
        if (canBePressed && (!first || button->Default())) {
            first = buttons_[at];
        }
    }
    bar_.setFocusProxy(first);
}

void CommandBarPeer::sizeButtons()
{
    const double zoom = zoomOf(*model_);
    const int margin = static_cast<int>(Margin * zoom);
    const int spacing = static_cast<int>(Spacing * zoom);
    row_->setContentsMargins(margin, margin, margin, margin);
    row_->setSpacing(spacing);
    const int height = bar_.height() - 2 * margin;
    if (height < TouchHeight * zoom || buttons_.empty()) {
        return;
    }
    int room = bar_.width() - 2 * margin;
    for (const QLabel* panel : panels_) {
        room -= panel->sizeHint().width() + spacing;
    }
    const int share = room / static_cast<int>(buttons_.size()) - spacing;
    const int width = std::min(static_cast<int>(height * TouchProportion), share);
    for (QPushButton* button : buttons_) {
        QFont font = button->font();
        font.setPointSizeF(TouchTextSize * zoom);
        button->setFont(font);
        button->setMinimumWidth(width);
    }
}

void CommandBarPeer::makeButtons()
{
    for (QPushButton* button : buttons_) {
        button->hide();
        button->deleteLater(); // one of them may be the one that was pressed
    }
    buttons_.clear();
    for (std::int32_t number = 1; number <= model_->BUTTONS()->Count(); ++number) {
        auto* button = new QPushButton(&bar_);
        button->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Expanding);
        connect(button, &QPushButton::clicked, this,
                [this, number] { input([&] { model_->inputButton(number); }); });
        watch(*button);
        row_->addWidget(button);
        buttons_.push_back(button);
    }
    sizeButtons();
}

bool CommandBarPeer::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Left || key == Qt::Key_Right) {
            moveFocus(watched, key == Qt::Key_Left ? -1 : 1);
            return true;
        }
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            static_cast<QPushButton*>(watched)->click();
            return true;
        }
    }
    return NativePeer::eventFilter(watched, event);
}

void CommandBarPeer::moveFocus(const QObject* from, int step)
{
    const auto count = static_cast<int>(buttons_.size());
    int at = 0;
    while (at < count && buttons_[static_cast<std::size_t>(at)] != from) {
        ++at;
    }
    for (at += step; at >= 0 && at < count; at += step) {
        QPushButton* button = buttons_[static_cast<std::size_t>(at)];
        if (button->isEnabled() && button->isVisible()) {
            button->setFocus(Qt::TabFocusReason);
            return;
        }
    }
}

} // namespace phial::qt
