#pragma once

#include "core/CoreTextBoxOps.h"
#include "visual/TextBox.h"

#include <vector>

namespace phial::headless
{

/// Makes text boxes ready and remembers which.
class RecordingTextBoxes : public CoreTextBoxOps
{
public:
    const std::vector<const TextBox*>& prepared() const { return prepared_; }

    void Prepare(TextBox& pTextBox) override
    {
        prepared_.push_back(&pTextBox);
        pTextBox.prepare();
    }

private:
    std::vector<const TextBox*> prepared_;
};

} // namespace phial::headless
