#include "qt/desktop/DesktopDialogs.h"

#include "app/cls_App.h"
#include "app/cls_AppURL.h"
#include "app/sys_Global.h"
#include "core/CorePathText.h"
#include "core/NativePath.h"
#include "core/RuntimeError.h"
#include "qt/base/QtText.h"
#include "qt/desktop/BoxParts.h"
#include "qt/desktop/BoxSigns.h"
#include "qt/desktop/ButtonFace.h"
#include "qt/desktop/PixelRatio.h"
#include "qt/desktop/SystemBox.h"
#include "qt/desktop/Theme.h"
#include "qt/desktop/Toast.h"
#include "qt/desktop/ToolkitLanguage.h"

#include <QApplication>
#include <QDialog>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QHeaderView>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>

namespace phial::qt
{

namespace
{

constexpr QSize TextBoxSize(560, 420);
constexpr QSize FileBoxSize(760, 520);
constexpr int InputWidth = 360;
constexpr int IconSize = 48;
constexpr int FrameParts = 130; // the width of a frame's icon and buttons beside its title

constexpr BoxText Ok{u"OK", u"OK"};
constexpr BoxText Yes{u"Ja", u"Yes"};
constexpr BoxText No{u"Nein", u"No"};
constexpr BoxText Cancel{u"Abbrechen", u"Cancel"};
constexpr BoxText Save{u"Speichern", u"Save"};
constexpr BoxText LookIn{u"Ordner:", u"Folder:"};
constexpr BoxText FileName{u"Dateiname:", u"File name:"};
constexpr BoxText FileType{u"Dateityp:", u"File type:"};

// Null for none and for a file that is no picture.
QPixmap iconOfBox(StringView path)
{
    if (path.empty()) {
        return {};
    }
    String folder;
    if (CorePathText::Drive(path).empty() && !path.starts_with(u'\\')) {
        ignoringErrors([&] { folder = QVAPP()->URL()->RESOURCEGFX(); });
    }
    return QPixmap(toQt(nativePath(folder + String(path)).u16string()));
}

QPushButton* addButton(QMessageBox& box, const BoxText& text, QMessageBox::ButtonRole role)
{
    QPushButton* button = box.addButton(inLanguage(text), role);
    enlarge(*button);
    return button;
}

void prepare(QMessageBox& box, StringView text, StringView title)
{
    box.setWindowTitle(titleOr(title));
    box.setTextFormat(Qt::PlainText);
    box.setText(toQt(text));
}

// The toolkit would take the screen's ratio, whatever pictures are being taken for.
void showSign(QMessageBox& box, QStyle::StandardPixmap icon)
{
    const auto draw = [&box, icon] {
        box.setIconPixmap(drawnSign(icon, IconSize, std::max(screenRatio(), box.devicePixelRatioF())));
    };
    draw();
    QObject::connect(&ThemeNews::instance(), &ThemeNews::changed, &box, draw);
}

// A box is as wide as its text, which may be shorter than the title in the frame. To be called when all its
// parts are there.
void leaveRoomForTitle(QMessageBox& box)
{
    ensureTheme(); // another style makes the layout anew
    if (auto* parts = qobject_cast<QGridLayout*>(box.layout())) {
        const int title = QFontMetrics(box.font()).horizontalAdvance(box.windowTitle());
        parts->addItem(new QSpacerItem(title + FrameParts, 0), parts->rowCount(), 0, 1, parts->columnCount());
    }
}

void showMessage(QMessageBox& box)
{
    QPushButton* ok = addButton(box, Ok, QMessageBox::AcceptRole);
    markAccent(*ok, true);
    leaveRoomForTitle(box);
    runBox(box);
}

// Where the desktop brings no dialog of its own, the toolkit's speaks English unless it is told.
void label(QFileDialog& dialog)
{
    dialog.setLabelText(QFileDialog::LookIn, inLanguage(LookIn));
    dialog.setLabelText(QFileDialog::FileName, inLanguage(FileName));
    dialog.setLabelText(QFileDialog::FileType, inLanguage(FileType));
    dialog.setLabelText(QFileDialog::Accept, inLanguage(Save));
    dialog.setLabelText(QFileDialog::Reject, inLanguage(Cancel));
}

// Its columns are as wide as the toolkit's smaller text would need.
void showWholeColumns(QFileDialog& dialog)
{
    for (const auto* table : dialog.findChildren<QTreeView*>()) {
        table->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    }
}

void beginAt(QFileDialog& dialog, StringView place)
{
    if (place.empty()) {
        return;
    }
    const QString whole = toQt(nativePath(place).u16string());
    if (QFileInfo(whole).isDir()) {
        dialog.setDirectory(whole);
        return;
    }
    if (const String folder = CorePathText::Folder(place); !folder.empty()) {
        dialog.setDirectory(toQt(nativePath(folder).u16string()));
    }
    if (const String name = CorePathText::FileName(place); name.find_first_of(u"*?") == String::npos) {
        dialog.selectFile(toQt(name));
    }
}

} // namespace

void DesktopDialogs::Info(StringView pText, StringView pTitle, StringView pIcon)
{
    QMessageBox box(QApplication::activeWindow());
    prepare(box, pText, pTitle);
    const QPixmap icon = iconOfBox(pIcon);
    if (icon.isNull()) {
        showSign(box, QStyle::SP_MessageBoxInformation);
    } else {
        box.setIconPixmap(icon.scaled(IconSize, IconSize, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    }
    showMessage(box);
}

void DesktopDialogs::Error(StringView pText, StringView pTitle)
{
    QMessageBox box(QApplication::activeWindow());
    prepare(box, pText, pTitle);
    showSign(box, QStyle::SP_MessageBoxCritical);
    showMessage(box);
}

DialogAnswer DesktopDialogs::YesNo(StringView pText, StringView pTitle)
{
    QMessageBox box(QApplication::activeWindow());
    prepare(box, pText, pTitle);
    showSign(box, QStyle::SP_MessageBoxQuestion);
    QPushButton* yes = addButton(box, Yes, QMessageBox::YesRole);
    QPushButton* no = addButton(box, No, QMessageBox::NoRole);
    markAccent(*no, true);
    box.setDefaultButton(no); // what is asked may destroy something
    box.setEscapeButton(no);
    leaveRoomForTitle(box);
    runBox(box);
    return box.clickedButton() == yes ? DialogAnswer::Yes : DialogAnswer::No;
}

void DesktopDialogs::Text(StringView pText, StringView pTitle)
{
    QDialog dialog(QApplication::activeWindow());
    dialog.setWindowTitle(titleOr(pTitle));
    dialog.resize(TextBoxSize);
    auto* layout = new QVBoxLayout(&dialog);
    auto* text = new QPlainTextEdit(toQt(pText), &dialog);
    text->setReadOnly(true);
    text->setLineWrapMode(QPlainTextEdit::NoWrap); // one line an entry of a list or log
    layout->addWidget(text);
    layout->addWidget(closingButton(dialog, CloseText, &QDialog::accept), 0, Qt::AlignRight);
    runBox(dialog);
}

String DesktopDialogs::SaveFile(StringView pFolder, StringView pTitle, StringView pFilter)
{
    useSessionLanguage();
    QFileDialog dialog(QApplication::activeWindow(), titleOr(pTitle));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    label(dialog);
    showWholeColumns(dialog);
    dialog.resize(FileBoxSize);
    beginAt(dialog, pFolder);
    const QString filter = toQt(toolkitFilter(pFilter));
    dialog.setNameFilter(filter);
    const qsizetype dot = filter.indexOf(QLatin1String("*."));
    if (dot >= 0) {
        dialog.setDefaultSuffix(
            filter.mid(dot + 2).section(QLatin1Char(')'), 0, 0).section(QLatin1Char(' '), 0, 0));
    }
    if (runBox(dialog) != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return {};
    }
    return systemPath(dialog.selectedFiles().constFirst().toStdU16String());
}

void DesktopDialogs::Done(StringView pText)
{
    const SystemBox open;
    showToast(toQt(pText));
}

String DesktopDialogs::Input(StringView pPrompt, StringView pTitle, StringView pDefault)
{
    QDialog dialog(QApplication::activeWindow());
    dialog.setWindowTitle(titleOr(pTitle));
    dialog.setMinimumWidth(InputWidth);
    auto* layout = new QVBoxLayout(&dialog);
    auto* prompt = new QLabel(toQt(pPrompt), &dialog);
    prompt->setTextFormat(Qt::PlainText);
    prompt->setWordWrap(true);
    auto* line = new QLineEdit(toQt(pDefault), &dialog);
    line->setMinimumHeight(line->sizeHint().height() + 8);
    line->selectAll();
    prompt->setBuddy(line);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    QPushButton* ok = closingButton(dialog, Ok, &QDialog::accept);
    ok->setDefault(true);
    markAccent(*ok, true);
    buttons->addWidget(ok);
    buttons->addWidget(closingButton(dialog, Cancel, &QDialog::reject));
    layout->addWidget(prompt);
    layout->addWidget(line);
    layout->addLayout(buttons);
    return runBox(dialog) == QDialog::Accepted ? fromQt(line->text()) : String();
}

String toolkitFilter(StringView pairs)
{
    const std::vector<StringView> parts = split(pairs, u"|");
    String filter;
    for (std::size_t at = 0; at + 1 < parts.size(); at += 2) {
        if (!filter.empty()) {
            filter += u";;";
        }
        filter += String(parts[at]) + u" (" + replaced(parts[at + 1], u";", u" ") + u")";
    }
    return filter;
}

} // namespace phial::qt
