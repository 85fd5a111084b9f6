#pragma once

#include "visual/ControlArray.h"
#include "visual/DesignedForm.h"
#include "visual/ctl_Button.h"

#include <cstdint>

namespace phial
{

class CalculatorDisplay;

/// The calculator's keys that recall a memory: each shows what it holds, keeps it in its tag as a plain
/// number, and forgets it on a press of the right button or the key Delete.
class MemoryKeys
{
public:
    /// The display outlives it. The keys are the form's `but_Recall` 0 to 3.
    MemoryKeys(DesignedForm& form, CalculatorDisplay& display);

    /// A key was pressed whose memory holds something; memories count from 0.
    Event<std::int32_t> RECALL;
    /// Takes over what the memories hold, in the language in force.
    void show();
    /// Empties the memory whose key has the focus. Gives whether one has.
    bool clearFocused();

private:
    void clear(std::int32_t memory);
    void show(ctl_Button& key, std::int32_t memory);

    CalculatorDisplay& display_;
    ControlArray<ctl_Button> keys_;
};

} // namespace phial
