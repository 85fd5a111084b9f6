#include "qt/desktop/Toast.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>

#include <chrono>

namespace phial::qt
{

namespace
{

using namespace std::chrono_literals;

constexpr auto ShownFor = 1200ms;
constexpr int ToastMargin = 18;
constexpr double Opacity = 0.94;
constexpr double ToastTextSize = 12; // points

/// Ends with the first press or key.
class ToastWindow final : public QDialog
{
public:
    explicit ToastWindow(QWidget* owner) : QDialog(owner, Qt::Tool | Qt::FramelessWindowHint) {}

protected:
    void mousePressEvent(QMouseEvent*) override { accept(); }
    void keyPressEvent(QKeyEvent*) override { accept(); }
};

} // namespace

void showToast(const QString& text)
{
    QWidget* owner = QApplication::activeWindow();
    ToastWindow toast(owner);
    auto* label = new QLabel(text, &toast);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignCenter);
    QFont font = label->font();
    font.setPointSizeF(ToastTextSize);
    label->setFont(font);
    auto* layout = new QVBoxLayout(&toast);
    layout->setContentsMargins(ToastMargin * 2, ToastMargin, ToastMargin * 2, ToastMargin);
    layout->addWidget(label);
    toast.setWindowOpacity(Opacity);
    toast.adjustSize();
    const QRect around = owner ? owner->frameGeometry() : QGuiApplication::primaryScreen()->geometry();
    toast.move(around.center() - toast.rect().center());
    QTimer::singleShot(ShownFor, &toast, &QDialog::accept);
    toast.exec();
}

} // namespace phial::qt
