#pragma once

#include "qt/desktop/NativePeer.h"
#include "qt/desktop/TextEditor.h"
#include "visual/RichTextBox.h"

namespace phial::qt
{

/// A field for longer text: a holder with the toolkit's field for many lines in it.
class RichTextBoxPeer final : public NativePeer
{
public:
    static QWidget* make(std::shared_ptr<RichTextBox> model, QWidget& holder);

private:
    RichTextBoxPeer(std::shared_ptr<RichTextBox> model, QWidget& holder);
    void show(ControlAspect aspect) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void edited();

    std::shared_ptr<RichTextBox> model_;
    QWidget& holder_;
    std::unique_ptr<TextEditor> editor_;
};

} // namespace phial::qt
