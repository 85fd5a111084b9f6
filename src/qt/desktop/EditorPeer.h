#pragma once

#include "qt/desktop/DeadKeys.h"
#include "qt/desktop/NativePeer.h"
#include "qt/desktop/TextEditor.h"
#include "visual/RichTextBox.h"
#include "visual/TextBox.h"

namespace phial::qt
{

/// A field to type in: a holder with the toolkit's field for one line or for many in it.
template <typename Model>
class EditorPeer final : public NativePeer
{
public:
    static QWidget* make(std::shared_ptr<Model> model, QWidget& holder);
    ~EditorPeer() override { keepDesktopKeyboard(false); }

private:
    EditorPeer(std::shared_ptr<Model> model, QWidget& holder);
    void showStyle() override;
    void showText() override;
    void showSelection() override;
    void showNames() override;
    void showKeyboard();
    void keepDesktopKeyboard(bool away);
    bool eventFilter(QObject* watched, QEvent* event) override;
    void makeEditor();
    void remakeEditor();
    void repeatEdits(TextEditor& before);
    void edit(const String& now);
    void edited();

    std::shared_ptr<Model> model_;
    QWidget& holder_;
    std::unique_ptr<TextEditor> editor_;
    DeadKeys deadKeys_;
    bool many_ = false;
    bool tellsEdit_ = false; ///< handlers hear of a text that the user has changed
    bool keepsAway_ = false; ///< the desktop's keyboard
};

extern template class EditorPeer<TextBox>;
extern template class EditorPeer<RichTextBox>;

} // namespace phial::qt
