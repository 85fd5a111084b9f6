#pragma once

#include "qt/desktop/NativePeer.h"
#include "visual/ctl_Button.h"

class QPushButton;

namespace phial::qt
{

/// A push button as the toolkit's own.
class ButtonPeer final : public NativePeer
{
public:
    static QWidget* make(std::shared_ptr<ctl_Button> model, QWidget& holder);

private:
    ButtonPeer(std::shared_ptr<ctl_Button> model, QPushButton& button);
    void showText() override;
    void showPicture() override;
    void showStyle() override;

    std::shared_ptr<ctl_Button> model_;
    QPushButton& button_;
};

} // namespace phial::qt
