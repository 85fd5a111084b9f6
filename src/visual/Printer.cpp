#include "visual/Printer.h"

namespace phial
{

Printer::Printer() : device_(*this, DrawErrors::Raise)
{
    device_.ScaleMode(ScaleUnit::Twips);
    device_.onPaper();
}

void Printer::Orientation(PageOrientation value)
{
    if (open_) {
        throw RuntimeError(396, u"Property cannot be set within a page");
    }
    if (value != PageOrientation::Portrait && value != PageOrientation::Landscape) {
        throw RuntimeError(ErrorNumber::InvalidArgument);
    }
    orientation_ = value;
}

void Printer::EndDoc()
{
    if (open_) {
        open_ = false;
        device_.EndDoc();
        device_.detach();
    }
}

std::shared_ptr<DrawBackend> Printer::openBackend()
{
    auto backend = visualHost().openPrinter(orientation_, title_);
    open_ = true;
    return backend;
}

} // namespace phial
