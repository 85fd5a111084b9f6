#include "qt/base/QtText.h"
#include "qt/desktop/FontCatalogue.h"
#include "qt/desktop/LineEnds.h"
#include "qt/desktop/TextEditor.h"
#include "qt/desktop/WidgetAspects.h"

#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTextBlock>

namespace phial::qt
{

namespace
{

/// The toolkit's field has no use for Ctrl and Return; in this one they make a line.
class LinedPage final : public QPlainTextEdit
{
public:
    using QPlainTextEdit::QPlainTextEdit;

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
        const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
        if (isReturn && modifiers == Qt::ControlModifier && !isReadOnly()) {
            textCursor().insertBlock();
            ensureCursorVisible();
        } else {
            QPlainTextEdit::keyPressEvent(event);
        }
    }
};

/// A field of many lines.
class PageEditor final : public TextEditor
{
public:
    PageEditor(QWidget& holder, const std::function<void()>& changed) : page_(new LinedPage(&holder))
    {
        page_->setTabChangesFocus(true);
        QObject::connect(page_, &QPlainTextEdit::textChanged, page_, [this, changed] {
            cutToLimit();
            changed();
        });
        QObject::connect(page_, &QPlainTextEdit::selectionChanged, page_, changed);
        QObject::connect(page_, &QPlainTextEdit::cursorPositionChanged, page_, changed);
    }
    ~PageEditor() override
    {
        if (page_) {
            page_->deleteLater();
        }
    }
    PageEditor(const PageEditor&) = delete;
    PageEditor& operator=(const PageEditor&) = delete;

    QWidget& widget() override { return *page_; }
    QWidget& pressed() override { return *page_->viewport(); }
    String text() const override { return withDoubleEnds(fromQt(page_->toPlainText())); }
    void text(const String& value) override
    {
        const auto length = static_cast<std::int32_t>(value.size());
        allowed_ = limit_ > 0 ? std::max(limit_, length) : 0;
        page_->setPlainText(toQt(withSingleEnds(value)));
    }
    void replace(std::int32_t start, std::int32_t length, const String& value) override
    {
        const String whole = text();
        const auto longer = static_cast<std::int32_t>(whole.size() + value.size()) - length;
        allowed_ = limit_ > 0 ? std::max(allowed_, longer) : 0;
        QTextCursor cursor = page_->textCursor();
        cursor.beginEditBlock();
        cursor.setPosition(toSingleEnds(whole, start));
        cursor.setPosition(toSingleEnds(whole, start + length), QTextCursor::KeepAnchor);
        cursor.insertText(toQt(withSingleEnds(value)));
        cursor.endEditBlock();
    }
    bool undo() override
    {
        const bool can = page_->document()->isUndoAvailable();
        if (can) {
            page_->undo();
        }
        return can;
    }
    bool canRedo() const override { return page_->document()->isRedoAvailable(); }
    std::int32_t selectionStart() const override
    {
        return toDoubleEnds(text(), page_->textCursor().selectionStart());
    }
    std::int32_t selectionLength() const override
    {
        return toDoubleEnds(text(), page_->textCursor().selectionEnd()) - selectionStart();
    }
    void select(std::int32_t start, std::int32_t length) override
    {
        const String whole = text();
        QTextCursor cursor = page_->textCursor();
        cursor.setPosition(toSingleEnds(whole, start));
        cursor.setPosition(toSingleEnds(whole, start + length), QTextCursor::KeepAnchor);
        page_->setTextCursor(cursor);
    }
    void style(const EditorStyle& style) override
    {
        limit_ = style.maximumLength;
        allowed_ = limit_ > 0 ? std::max(limit_, static_cast<std::int32_t>(text().size())) : 0;
        page_->setFont(fontCatalogue().font(style.font));
        page_->setReadOnly(style.locked);
        page_->setAttribute(Qt::WA_InputMethodEnabled, !style.locked && !style.ownKeyboard);
        showColours(*page_, style.text, style.background);
    }

private:
    bool isTooLong() const { return allowed_ > 0 && static_cast<std::int32_t>(text().size()) > allowed_; }

    // The toolkit has no limit for such fields: what came beyond it goes from before the caret. Undoing would
    // take back all that was typed in one go.
    void cutToLimit()
    {
        if (!isTooLong()) {
            return;
        }
        QTextCursor cursor = page_->textCursor();
        cursor.joinPreviousEditBlock();
        while (isTooLong() && !cursor.atStart()) {
            cursor.deletePreviousChar();
        }
        cursor.endEditBlock();
    }

    QPointer<QPlainTextEdit> page_; // its holder may end first
    std::int32_t limit_ = 0;
    std::int32_t allowed_ = 0; ///< the limit, or more when the program has set more
};

} // namespace

std::unique_ptr<TextEditor> makePageEditor(QWidget& holder, const std::function<void()>& changed)
{
    return std::make_unique<PageEditor>(holder, changed);
}

} // namespace phial::qt
