#include "qt/base/QtText.h"
#include "qt/desktop/FontCatalogue.h"
#include "qt/desktop/TextEditor.h"
#include "qt/desktop/WidgetAspects.h"

#include <QLineEdit>
#include <QPointer>
#include <QSignalBlocker>

#include <algorithm>

namespace phial::qt
{

namespace
{

constexpr int NoLimit = 32767;

/// The toolkit's field lets go of its selection with the focus; this one keeps it.
class KeepingLine final : public QLineEdit
{
public:
    using QLineEdit::QLineEdit;

protected:
    void focusOutEvent(QFocusEvent* event) override
    {
        const int start = selectionStart();
        const int length = selectionLength();
        const bool isBackward = start == cursorPosition();
        const QSignalBlocker quiet(this);
        QLineEdit::focusOutEvent(event);
        if (length > 0) {
            setSelection(isBackward ? start + length : start, isBackward ? -length : length);
        }
    }
};

/// A field of one line.
class LineEditor final : public TextEditor
{
public:
    LineEditor(QWidget& holder, const std::function<void()>& changed) : line_(new KeepingLine(&holder))
    {
        line_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored); // the model says how large it is
        QObject::connect(line_, &QLineEdit::textChanged, line_, changed);
        QObject::connect(line_, &QLineEdit::selectionChanged, line_, changed);
        QObject::connect(line_, &QLineEdit::cursorPositionChanged, line_, changed);
    }
    ~LineEditor() override
    {
        if (line_) {
            line_->deleteLater();
        }
    }
    LineEditor(const LineEditor&) = delete;
    LineEditor& operator=(const LineEditor&) = delete;

    QWidget& widget() override { return *line_; }
    QWidget& pressed() override { return *line_; }
    String text() const override { return fromQt(line_->text()); }
    void text(const String& value) override
    {
        makeRoomFor(static_cast<qsizetype>(value.size()));
        line_->setText(toQt(value));
    }
    void replace(std::int32_t start, std::int32_t length, const String& value) override
    {
        const auto whole = line_->text().size() - length + static_cast<qsizetype>(value.size());
        makeRoomFor(whole);
        line_->setSelection(start, length);
        line_->insert(toQt(value));
    }
    // Undoing clears a field with hidden signs, which is a step that could be undone in turn.
    bool undo() override
    {
        const bool can = line_->isUndoAvailable() && line_->echoMode() == QLineEdit::Normal;
        if (can) {
            line_->undo();
        }
        return can;
    }
    bool canRedo() const override { return line_->isRedoAvailable(); }
    std::int32_t selectionStart() const override
    {
        return line_->hasSelectedText() ? line_->selectionStart() : line_->cursorPosition();
    }
    std::int32_t selectionLength() const override { return line_->selectionLength(); }
    void select(std::int32_t start, std::int32_t length) override
    {
        line_->setCursorPosition(start);
        if (length > 0) {
            line_->setSelection(start, length);
        }
    }
    void style(const EditorStyle& style) override
    {
        limit_ = style.maximumLength > 0 ? style.maximumLength : NoLimit;
        makeRoomFor(line_->text().size());
        line_->setFont(fontCatalogue().font(style.font));
        line_->setAlignment(lineAlignment(style.alignment));
        line_->setReadOnly(style.locked);
        line_->setAttribute(Qt::WA_InputMethodEnabled, !style.locked && !style.ownKeyboard);
        line_->setEchoMode(style.password ? QLineEdit::Password : QLineEdit::Normal);
        showColours(*line_, style.text, style.background);
    }

private:
    // Text of the program is not cut. Another limit ends what could be undone.
    void makeRoomFor(qsizetype length)
    {
        const int room = std::max(limit_, static_cast<int>(length));
        if (line_->maxLength() != room) {
            line_->setMaxLength(room);
        }
    }

    QPointer<QLineEdit> line_; // its holder may end first
    int limit_ = NoLimit;
};

} // namespace

std::unique_ptr<TextEditor> makeLineEditor(QWidget& holder, const std::function<void()>& changed)
{
    return std::make_unique<LineEditor>(holder, changed);
}

} // namespace phial::qt
