#include "qt/desktop/ButtonPeer.h"

#include "qt/base/QtText.h"
#include "qt/desktop/ButtonFace.h"
#include "qt/desktop/FontCatalogue.h"
#include "qt/desktop/PictureImage.h"
#include "qt/desktop/WidgetAspects.h"

#include <QPushButton>

namespace phial::qt
{

QWidget* ButtonPeer::make(std::shared_ptr<ctl_Button> model, QWidget& holder)
{
    auto* button = new QPushButton(&holder);
    new ButtonPeer(std::move(model), *button); // belongs to the button
    return button;
}

ButtonPeer::ButtonPeer(std::shared_ptr<ctl_Button> model, QPushButton& button)
    : NativePeer(model, button), model_(std::move(model)), button_(button)
{
    connect(&button_, &QPushButton::clicked, this, [this] { input([this] { model_->click(); }); });
    watch(button_);
    begin();
}

void ButtonPeer::showText()
{
    button_.setText(buttonText(model_->Caption()));
}

void ButtonPeer::showPicture()
{
    button_.setIcon(iconOf(model_->Picture()));
}

void ButtonPeer::showStyle()
{
    markAccent(button_, model_->Accent());
    button_.setFont(fontCatalogue().font(zoomed(model_->Font()->traits(), *model_)));
}

} // namespace phial::qt
