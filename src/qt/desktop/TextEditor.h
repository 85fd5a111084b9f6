#pragma once

#include "core/String.h"
#include "visual/Alignment.h"
#include "visual/Font.h"

#include <QColor>

#include <functional>
#include <memory>

class QWidget;

namespace phial::qt
{

/// How a field for text looks and what it takes.
struct EditorStyle {
    FontSpec font;
    QColor text;
    QColor background;
    Alignment alignment = Alignment::Left;
    bool locked = false;
    bool password = false;
    bool ownKeyboard = false;       ///< no input method serves it
    std::int32_t maximumLength = 0; ///< of what is typed; 0 for no limit
};

/// A field for text as the toolkit's own, of one line or of many, behind one interface. Texts and positions
/// are the system's, with CR LF.
class TextEditor
{
public:
    virtual ~TextEditor() = default;

    virtual QWidget& widget() = 0;
    /// The widget that gets presses.
    virtual QWidget& pressed() = 0;
    virtual String text() const = 0;
    virtual void text(const String& value) = 0;
    /// Puts a text in place of a part, which the user can undo as what has been typed; `text` cannot be
    /// undone and ends what could be.
    virtual void replace(std::int32_t start, std::int32_t length, const String& value) = 0;
    /// Takes back the last step of what can be undone; gives whether there was one.
    virtual bool undo() = 0;
    /// Whether the last step that was taken back can be made again.
    virtual bool canRedo() const = 0;
    virtual std::int32_t selectionStart() const = 0;
    virtual std::int32_t selectionLength() const = 0;
    virtual void select(std::int32_t start, std::int32_t length) = 0;
    virtual void style(const EditorStyle& style) = 0;
};

/// Both call `changed` when text or selection have changed, by whomever. The holder owns their widgets, which
/// end with the editor.
std::unique_ptr<TextEditor> makeLineEditor(QWidget& holder, const std::function<void()>& changed);
std::unique_ptr<TextEditor> makePageEditor(QWidget& holder, const std::function<void()>& changed);

} // namespace phial::qt
