// A window of plain Qt with controls of Phial in its layout: a formula is typed, shown and counted.

#include "app/Session.h"
#include "chem/FormulaAnalysis.h"
#include "core/NumberText.h"
#include "qt/base/QtText.h"
#include "qt/desktop/ControlWidget.h"
#include "qt/desktop/DesktopApplication.h"
#include "term/clt_TermInput.h"
#include "term/ctl_TermLabel.h"

#include <QFormLayout>
#include <QLabel>
#include <QWidget>

class AtomWindow final : public QWidget
{
    Q_OBJECT

public:
    AtomWindow()
    {
        auto* layout = new QFormLayout(this);
        layout->addRow(tr("Formel"), new phial::qt::ControlWidget(input_));
        layout->addRow(tr("Gelesen"), new phial::qt::ControlWidget(shown_));
        layout->addRow(tr("Atome"), count_);
        input_->inset(6);
        shown_->TEXTFONT()->Size(24);
        changed_ = input_->CHANGED.connect([this] { show(); });
        connect(this, &AtomWindow::counted, count_, &QLabel::setText);
        input_->Term(u"Ca(OH)2");
        show();
    }

signals:
    void counted(const QString& text);

private:
    void show()
    {
        const phial::String formula = input_->Term();
        shown_->Term(formula);
        QStringList atoms;
        for (const phial::AtomCount& each : phial::AtomCounts(formula)) {
            atoms += QStringLiteral("%1 %2").arg(each.count).arg(phial::qt::toQt(each.symbol));
        }
        emit counted(atoms.join(QStringLiteral(", ")));
    }

    std::shared_ptr<phial::clt_TermInput> input_ = phial::makeControl<phial::clt_TermInput>();
    std::shared_ptr<phial::ctl_TermLabel> shown_ = phial::makeControl<phial::ctl_TermLabel>();
    QLabel* count_ = new QLabel;
    phial::Connection changed_;
};

int main(int argc, char** argv)
{
    const phial::qt::DesktopApplication application(argc, argv, u"Atome");
    const phial::Session session(application.platform());
    AtomWindow window;
    window.setWindowTitle(QStringLiteral("Atome zählen"));
    window.QWidget::show();
    if (const auto folder = application.shotsFolder()) {
        return window.grab().save(QString::fromStdU16String((*folder / "plain_qt.png").u16string())) ? 0 : 1;
    }
    return application.run();
}

#include "main.moc"
