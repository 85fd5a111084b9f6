#pragma once

#include "visual/DrawDevice.h"
#include "visual/VisualHost.h"

namespace phial
{

/// The system's printer. Nothing is sent before something is drawn; errors are raised.
class Printer final : private DrawTarget
{
public:
    Printer();

    /// The page; its unit is twips at first.
    DrawDevice& device() { return device_; }
    PageOrientation Orientation() const { return orientation_; }
    /// Before anything is drawn; later raises 396.
    void Orientation(PageOrientation value);
    /// The job's name.
    String Title() const { return title_; }
    void Title(String value) { title_ = std::move(value); }
    /// Ends the page and begins the next.
    void NewPage() { device_.NewPage(); }
    /// Ends the document; the next drawing begins another one. Nothing happens when none is begun.
    void EndDoc();

private:
    std::shared_ptr<DrawBackend> openBackend() override;

    PageOrientation orientation_ = PageOrientation::Portrait;
    String title_;
    bool open_ = false;
    DrawDevice device_;
};

} // namespace phial
