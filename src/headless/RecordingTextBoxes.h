#pragma once

#include "core/CoreTextBoxOps.h"

#include <vector>

namespace phial::headless
{

/// Remembers which text boxes were to be made ready.
class RecordingTextBoxes : public CoreTextBoxOps
{
public:
    const std::vector<const TextBox*>& prepared() const { return prepared_; }

    void Prepare(TextBox& pTextBox) override { prepared_.push_back(&pTextBox); }

private:
    std::vector<const TextBox*> prepared_;
};

} // namespace phial::headless
