#pragma once

#include "core/CoreTextBoxOps.h"

#include <memory>

namespace phial
{

/// Help with what is on a form.
class CoreUIFacet
{
public:
    explicit CoreUIFacet(std::shared_ptr<phial::CoreTextBoxOps> textBoxes) : textBoxes_(std::move(textBoxes))
    {
    }

    phial::CoreTextBoxOps& CoreTextBoxOps() const { return *textBoxes_; }

private:
    std::shared_ptr<phial::CoreTextBoxOps> textBoxes_;
};

} // namespace phial
