#include "qt/desktop/BoxParts.h"

#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/sys_Global.h"
#include "core/ProgramTitle.h"
#include "core/RuntimeError.h"
#include "qt/base/QtText.h"
#include "qt/desktop/SystemBox.h"
#include "qt/desktop/ToolkitLanguage.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QPushButton>

namespace phial::qt
{

namespace
{

constexpr double TextSize = 10; // points: larger than in forms, since a box stands alone
constexpr int HeightForFingers = 8;

/// Keeps the repeats of a held Return or Escape from the box: they belong to the press that has opened it, or
/// to one that was for a box before.
class HeldKeys final : public QObject
{
public:
    explicit HeldKeys(const QDialog& box) : box_(box) { qApp->installEventFilter(this); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const auto* part =
            event->type() == QEvent::KeyPress ? qobject_cast<const QWidget*>(watched) : nullptr;
        if (!part || part->window() != &box_) {
            return false;
        }
        const auto& key = static_cast<const QKeyEvent&>(*event);
        const bool ends =
            key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter || key.key() == Qt::Key_Escape;
        return ends && key.isAutoRepeat();
    }

private:
    const QDialog& box_;
};

} // namespace

QString inLanguage(const BoxText& text)
{
    return toQt(isGerman() ? text.german : text.english);
}

QString titleOr(StringView title)
{
    if (!title.empty()) {
        return toQt(title);
    }
    String name;
    ignoringErrors([&] { name = QVAPP()->CONFIG()->NAME(); });
    return toQt(name.empty() ? programTitle() : name);
}

void enlarge(QPushButton& button)
{
    button.setMinimumHeight(button.sizeHint().height() + HeightForFingers);
}

QPushButton* closingButton(QDialog& dialog, const BoxText& text, void (QDialog::*end)())
{
    auto* button = new QPushButton(inLanguage(text), &dialog);
    enlarge(*button);
    QObject::connect(button, &QPushButton::clicked, &dialog, end);
    return button;
}

int runBox(QDialog& box)
{
    QFont font = box.font();
    font.setPointSizeF(TextSize);
    for (QWidget* part : box.findChildren<QWidget*>()) {
        part->setFont(font);
    }
    const SystemBox running;
    const HeldKeys held(box);
    return box.exec();
}

} // namespace phial::qt
