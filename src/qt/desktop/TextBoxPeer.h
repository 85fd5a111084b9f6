#pragma once

#include "qt/desktop/NativePeer.h"
#include "qt/desktop/TextEditor.h"
#include "visual/TextBox.h"

namespace phial::qt
{

/// A text box: a holder with the toolkit's field for one line or for many in it.
class TextBoxPeer final : public NativePeer
{
public:
    static QWidget* make(std::shared_ptr<TextBox> model, QWidget& holder);

private:
    TextBoxPeer(std::shared_ptr<TextBox> model, QWidget& holder);
    void show(ControlAspect aspect) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void makeEditor();
    void edited();

    std::shared_ptr<TextBox> model_;
    QWidget& holder_;
    std::unique_ptr<TextEditor> editor_;
    bool many_ = false;
};

} // namespace phial::qt
