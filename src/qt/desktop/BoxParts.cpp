#include "qt/desktop/BoxParts.h"

#include "core/ProgramTitle.h"
#include "qt/base/QtText.h"
#include "qt/desktop/SystemBox.h"
#include "qt/desktop/ToolkitLanguage.h"

#include <QDialog>
#include <QPushButton>

namespace phial::qt
{

namespace
{

constexpr double TextSize = 10; // points: larger than in forms, since a box stands alone
constexpr int HeightForFingers = 8;

} // namespace

QString inLanguage(const BoxText& text)
{
    return toQt(isGerman() ? text.german : text.english);
}

QString titleOr(StringView title)
{
    return toQt(title.empty() ? programTitle() : String(title));
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
    return box.exec();
}

} // namespace phial::qt
