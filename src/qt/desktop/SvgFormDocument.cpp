#include "qt/desktop/SvgFormDocument.h"

#include "core/NativePath.h"
#include "core/RuntimeError.h"
#include "qt/base/QtText.h"
#include "qt/desktop/SvgForm.h"
#include "qt/desktop/SvgFormPainter.h"

#include <QFile>
#include <QPainter>

#include <deque>

namespace phial::qt
{

namespace
{

constexpr qint64 MaxFileSize = qint64{8} * 1024 * 1024;

/// A field of the form; a text's lines are divided by CR LF towards the system.
class Field final : public CoreFormField
{
public:
    explicit Field(SvgField& field) : field_(&field) {}

    String Name() const override { return fromQt(field_->name); }
    String Text() const override { return replaced(fromQt(field_->text), u"\n", u"\r\n"); }
    void Text(StringView pText) override
    {
        field_->text = toQt(replaced(replaced(pText, u"\r\n", u"\n"), u"\r", u"\n"));
    }

private:
    SvgField* field_;
};

class FieldList final : public CoreFormFields
{
public:
    explicit FieldList(SvgForm& form)
    {
        for (SvgField& field : form.fields) {
            fields_.emplace_back(field);
        }
    }

    std::int32_t Count() const override { return static_cast<std::int32_t>(fields_.size()); }
    CoreFormField& Item(std::int32_t pIndex) override
    {
        if (pIndex < 1 || pIndex > Count()) {
            throw RuntimeError(ErrorNumber::IndexOutOfBounds);
        }
        return fields_[static_cast<std::size_t>(pIndex) - 1];
    }

private:
    std::deque<Field> fields_;
};

QPageLayout layoutFor(const QSizeF& millimetres)
{
    const bool isLandscape = millimetres.width() > millimetres.height();
    const QPageSize sheet =
        millimetres.isEmpty()
            ? QPageSize(QPageSize::A4)
            : QPageSize(isLandscape ? millimetres.transposed() : millimetres, QPageSize::Millimeter);
    QPageLayout layout(sheet, isLandscape ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF());
    layout.setMode(QPageLayout::FullPageMode);
    return layout;
}

class SvgFormDocument final : public CoreFormDocument
{
public:
    explicit SvgFormDocument(PrinterMaker printer) : printer_(std::move(printer)) {}

    bool Load(StringView pPath) override
    {
        QFile file(toQt(nativePath(pPath).u16string()));
        if (!file.open(QIODevice::ReadOnly) || file.size() > MaxFileSize) {
            return false;
        }
        auto form = readSvgForm(file.readAll());
        if (!form) {
            return false;
        }
        form_ = std::make_unique<SvgForm>(std::move(*form));
        fields_ = std::make_unique<FieldList>(*form_);
        title_ = file.fileName().section(QChar(u'/'), -1).section(QChar(u'.'), 0, 0);
        return true;
    }

    CoreFormFields& Fields(std::int32_t pPage) override
    {
        if (!fields_ || pPage != 1) {
            throw RuntimeError(ErrorNumber::IndexOutOfBounds);
        }
        return *fields_;
    }

    bool Print(std::int32_t pCopies) override
    {
        if (!form_ || pCopies < 1) {
            return false;
        }
        const auto printer = printer_(title_);
        if (!printer) {
            return false;
        }
        printer->setPageLayout(layoutFor(form_->pageSize));
        printer->setCopyCount(pCopies);
        QPainter painter;
        return painter.begin(printer.get()) &&
               drawSvgForm(painter, *form_, printer->paperRect(QPrinter::DevicePixel)) && painter.end();
    }

private:
    PrinterMaker printer_;
    QString title_;
    std::unique_ptr<SvgForm> form_;
    std::unique_ptr<FieldList> fields_;
};

} // namespace

std::shared_ptr<CoreFormDocument> newSvgFormDocument(PrinterMaker printer)
{
    return std::make_shared<SvgFormDocument>(std::move(printer));
}

} // namespace phial::qt
