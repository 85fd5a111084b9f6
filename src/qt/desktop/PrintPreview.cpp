#include "qt/desktop/PrintPreview.h"

#include "core/CoreDialogs.h"
#include "core/CoreRoot.h"
#include "core/RuntimeError.h"
#include "qt/base/QtText.h"
#include "qt/desktop/BoxParts.h"
#include "qt/desktop/ButtonFace.h"
#include "qt/desktop/PrinterChoice.h"
#include "qt/desktop/ToolkitLanguage.h"

#include <QApplication>
#include <QDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QPrintDialog>
#include <QPrintPreviewWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include <memory>

namespace phial::qt
{

namespace
{

constexpr QSize WindowSize(900, 700);

constexpr BoxText Preview{u"Druckvorschau", u"Print preview"};
constexpr BoxText Print{u"Drucken …", u"Print…"};
constexpr BoxText SavePdf{u"Als PDF speichern …", u"Save as PDF…"};
constexpr BoxText PageOf{u"Seite %1 von %2", u"Page %1 of %2"};
constexpr BoxText Previous{u"Vorige Seite", u"Previous page"};
constexpr BoxText Next{u"Nächste Seite", u"Next page"};
constexpr BoxText Larger{u"Größer", u"Larger"};
constexpr BoxText Smaller{u"Kleiner", u"Smaller"};
constexpr BoxText PdfTitle{u"Als PDF-Datei speichern", u"Save as a PDF file"};
constexpr BoxText Saved{u"Gespeichert", u"Saved"};

std::unique_ptr<QPrinter> printerFor(const PrintJob& job)
{
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setDocName(job.title);
    printer->setPageLayout(job.layout);
    return printer;
}

/// The window. What the user has chosen is done when it has closed, so that errors reach the caller.
class PreviewWindow
{
public:
    explicit PreviewWindow(const PrintJob& job)
        : job_(job), sheet_(printerFor(job)), dialog_(QApplication::activeWindow()),
          pages_(new QPrintPreviewWidget(sheet_.get(), &dialog_)), page_(new QLabel(&dialog_))
    {
        dialog_.setWindowTitle(job.title.isEmpty() ? inLanguage(Preview)
                                                   : inLanguage(Preview) + QStringLiteral(": ") + job.title);
        dialog_.resize(WindowSize);
        QObject::connect(pages_, &QPrintPreviewWidget::paintRequested, &dialog_,
                         [this](QPrinter* printer) { ignoringErrors([&] { job_.paint(*printer); }); });
        QObject::connect(pages_, &QPrintPreviewWidget::previewChanged, &dialog_, [this] { showPage(); });
        auto* layout = new QVBoxLayout(&dialog_);
        layout->addLayout(viewBar());
        layout->addWidget(pages_, 1);
        layout->addLayout(actionBar());
        showPage();
    }

    /// The printer or file to print on; null when the user has closed the window.
    std::unique_ptr<QPrinter> run()
    {
        runBox(dialog_);
        return std::move(chosen_);
    }
    bool isPdf() const { return isPdf_; }

private:
    template <typename Action>
    QPushButton* button(const BoxText& text, Action action)
    {
        auto* made = new QPushButton(inLanguage(text), &dialog_);
        made->setAutoDefault(false);
        enlarge(*made);
        QObject::connect(made, &QPushButton::clicked, &dialog_, action);
        return made;
    }

    QLayout* viewBar()
    {
        previous_ = button(Previous, [this] { turn(-1); });
        next_ = button(Next, [this] { turn(1); });
        auto* bar = new QHBoxLayout;
        bar->addWidget(previous_);
        bar->addWidget(page_);
        bar->addWidget(next_);
        bar->addStretch();
        bar->addWidget(button(Smaller, [this] { pages_->zoomOut(); }));
        bar->addWidget(button(Larger, [this] { pages_->zoomIn(); }));
        return bar;
    }

    QLayout* actionBar()
    {
        auto* bar = new QHBoxLayout;
        QPushButton* print = button(Print, [this] { choosePrinter(); });
        print->setDefault(true);
        markAccent(*print, true);
        bar->addWidget(print);
        bar->addWidget(button(SavePdf, [this] { chooseFile(); }));
        bar->addStretch();
        bar->addWidget(closingButton(dialog_, CloseText, &QDialog::reject));
        return bar;
    }

    void turn(int pages)
    {
        pages_->setCurrentPage(pages_->currentPage() + pages);
        showPage();
    }

    void showPage()
    {
        const int page = pages_->currentPage();
        page_->setText(inLanguage(PageOf).arg(page).arg(pages_->pageCount()));
        previous_->setEnabled(page > 1);
        next_->setEnabled(page < pages_->pageCount());
    }

    void choosePrinter()
    {
        auto printer = printerFor(job_);
        QPrintDialog choice(printer.get(), &dialog_);
        choice.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintShowPageSize);
        if (choice.exec() == QDialog::Accepted) {
            accept(std::move(printer));
        }
    }

    void chooseFile()
    {
        if (auto file = chosenPdfFile(job_.title, inLanguage(PdfTitle))) {
            isPdf_ = true;
            accept(std::move(file));
        }
    }

    void accept(std::unique_ptr<QPrinter> printer)
    {
        chosen_ = std::move(printer);
        dialog_.accept();
    }

    const PrintJob& job_;
    std::unique_ptr<QPrinter> sheet_; // what the preview measures and paints itself by
    QDialog dialog_;
    QPrintPreviewWidget* pages_;
    QLabel* page_;
    QPushButton* previous_ = nullptr;
    QPushButton* next_ = nullptr;
    std::unique_ptr<QPrinter> chosen_;
    bool isPdf_ = false;
};

} // namespace

void previewAndPrint(const PrintJob& job)
{
    useSessionLanguage();
    PreviewWindow window(job);
    const std::unique_ptr<QPrinter> printer = window.run();
    if (!printer) {
        return;
    }
    printOn(*printer, job);
    if (window.isPdf()) {
        coreRoot().CoreDialogs().Done(fromQt(inLanguage(Saved)));
    }
}

} // namespace phial::qt
