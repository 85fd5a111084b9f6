#include "qt/desktop/EditorPeer.h"

#include "qt/desktop/DesktopColours.h"
#include "qt/desktop/LineEnds.h"
#include "qt/desktop/WidgetAspects.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QVBoxLayout>
#include <QWidget>

#include <algorithm>
#include <utility>
#include <vector>

namespace phial::qt
{

namespace
{

bool hasManyLines(const TextBox& model)
{
    return model.MultiLine();
}

bool hasManyLines(const RichTextBox& /*model*/)
{
    return true;
}

bool hasOwnKeyboard(const Control& model)
{
    return model.frame().ownKeyboard();
}

/// Where two texts differ: the part of the one that became a part of the other.
struct TextDifference {
    std::int32_t start;
    std::int32_t length;
    String replacement;
};

TextDifference differenceOf(const String& before, const String& now)
{
    const std::size_t common = std::min(before.size(), now.size());
    const auto start = static_cast<std::size_t>(std::ranges::mismatch(before, now).in1 - before.begin());
    std::size_t rest = 0;
    while (rest < common - start && before[before.size() - 1 - rest] == now[now.size() - 1 - rest]) {
        ++rest;
    }
    return {static_cast<std::int32_t>(start), static_cast<std::int32_t>(before.size() - start - rest),
            now.substr(start, now.size() - start - rest)};
}

EditorStyle styleOf(const TextBox& model)
{
    EditorStyle style;
    style.font = zoomed(model.Font()->traits(), model);
    style.text = toQColor(inkOn(model.BackColor(), model.ForeColor()));
    style.background = toQColor(model.BackColor());
    style.alignment = model.Alignment();
    style.locked = model.Locked();
    style.ownKeyboard = hasOwnKeyboard(model);
    style.password = !model.PasswordChar().empty();
    style.maximumLength = model.MaxLength();
    return style;
}

EditorStyle styleOf(const RichTextBox& model)
{
    EditorStyle style;
    style.font = zoomed(model.Font()->traits(), model);
    style.text = toQColor(inkOn(model.BackColor(), SystemColour::WindowText));
    style.background = toQColor(model.BackColor());
    style.locked = model.Locked();
    style.ownKeyboard = hasOwnKeyboard(model);
    return style;
}

} // namespace

template <typename Model>
QWidget* EditorPeer<Model>::make(std::shared_ptr<Model> model, QWidget& holder)
{
    auto* field = new QWidget(&holder);
    auto* layout = new QVBoxLayout(field);
    layout->setContentsMargins(0, 0, 0, 0);
    new EditorPeer(std::move(model), *field); // belongs to the field
    return field;
}

template <typename Model>
EditorPeer<Model>::EditorPeer(std::shared_ptr<Model> model, QWidget& holder)
    : NativePeer(model, holder), model_(std::move(model)), holder_(holder)
{
    makeEditor();
    begin();
}

template <typename Model>
void EditorPeer<Model>::makeEditor()
{
    many_ = hasManyLines(*model_);
    const auto changed = [this] { edited(); };
    editor_ = many_ ? makePageEditor(holder_, changed) : makeLineEditor(holder_, changed);
    holder_.layout()->addWidget(&editor_->widget());
    holder_.setFocusProxy(&editor_->widget());
    watch(editor_->widget());
    if (&editor_->pressed() != &editor_->widget()) {
        watch(editor_->pressed());
    }
}

/// Another widget, which takes the place of the one that there was in the order of Tab and, before that is
/// hidden, its focus. What the user has edited can be undone in it too.
template <typename Model>
void EditorPeer<Model>::remakeEditor()
{
    const std::unique_ptr<TextEditor> before = std::move(editor_);
    QWidget& old = before->widget();
    const bool hasFocus = holder_.window()->focusWidget() == &old;
    makeEditor();
    repeatEdits(*before);
    QWidget& made = editor_->widget();
    made.show();
    QWidget::setTabOrder(&old, &made);
    if (hasFocus) {
        made.setFocus();
    }
    old.removeEventFilter(this);
    before->pressed().removeEventFilter(this);
    old.hide();
}

/// One field cannot take over the steps of another, so all of them are undone in the one and made again in
/// the other.
template <typename Model>
void EditorPeer<Model>::repeatEdits(TextEditor& before)
{
    std::vector<String> texts{withDoubleEnds(before.text())};
    while (before.undo()) {
        texts.push_back(withDoubleEnds(before.text()));
    }
    editor_->text(texts.back());
    for (auto text = texts.rbegin() + 1; text != texts.rend(); ++text) {
        edit(*text);
    }
}

template <typename Model>
void EditorPeer<Model>::edited()
{
    input([this] {
        const QPointer<QObject> alive(this); // a handler may close the form
        const bool wasTelling = std::exchange(tellsEdit_, editor_->text() != model_->Text());
        model_->inputText(editor_->text(), editor_->selectionStart(), editor_->selectionLength());
        if (alive) {
            tellsEdit_ = wasTelling;
        }
    });
}

template <typename Model>
void EditorPeer<Model>::showStyle()
{
    const bool remade = many_ != hasManyLines(*model_);
    if (remade) {
        remakeEditor();
    }
    editor_->style(styleOf(*model_));
    showKeyboard();
    if (remade) {
        showText();
    }
}

/// A text that the program sets begins anew, with its caret at the start; one that it has edited, such as a
/// selection that got a format, has the caret behind the edit, and the user can undo it. One that it makes of
/// what the user is just entering takes the place of that step.
template <typename Model>
void EditorPeer<Model>::showText()
{
    const String before = editor_->text();
    const String now = many_ ? withDoubleEnds(model_->Text()) : model_->Text();
    if (before != now && !before.empty() && model_->SelStart() > 0) {
        if (tellsEdit_ && !editor_->canRedo()) {
            editor_->undo(); // else undoing the correction alone would only have it made again
        }
        edit(now);
    }
    if (editor_->text() != now) {
        editor_->text(now);
    }
    showSelection();
}

/// A step that can be undone.
template <typename Model>
void EditorPeer<Model>::edit(const String& now)
{
    const TextDifference difference = differenceOf(editor_->text(), now);
    editor_->replace(difference.start, difference.length, difference.replacement);
}

template <typename Model>
void EditorPeer<Model>::showSelection()
{
    editor_->select(model_->SelStart(), model_->SelLength());
}

template <typename Model>
void EditorPeer<Model>::showNames()
{
    passNames(holder_, editor_->widget());
}

// The toolkit asks for the desktop's keyboard when a field is tapped, whether or not an input method serves
// it.
template <typename Model>
void EditorPeer<Model>::showKeyboard()
{
    keepDesktopKeyboard(editor_->widget().hasFocus() && hasOwnKeyboard(*model_));
}

template <typename Model>
void EditorPeer<Model>::keepDesktopKeyboard(bool away)
{
    if (std::exchange(keepsAway_, away) != away) {
        qApp->setAutoSipEnabled(!away);
    }
}

template <typename Model>
bool EditorPeer<Model>::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::FocusIn:
        showKeyboard();
        break;
    case QEvent::FocusOut:
        keepDesktopKeyboard(false);
        deadKeys_.forget();
        break;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        if (hasOwnKeyboard(*model_) && !model_->Locked() && watched->isWidgetType() &&
            deadKeys_.filter(static_cast<QWidget&>(*watched), static_cast<QKeyEvent&>(*event))) {
            return true;
        }
        break;
    default:
        break;
    }
    const bool filtered = NativePeer::eventFilter(watched, event);
    if (event->type() == QEvent::MouseButtonRelease) {
        input([this] { model_->click(); });
    } else if (event->type() == QEvent::MouseButtonDblClick) {
        input([this] { model_->doubleClick(); });
    }
    return filtered;
}

template class EditorPeer<TextBox>;
template class EditorPeer<RichTextBox>;

} // namespace phial::qt
