#pragma once

#include "visual/Form.h"

namespace learning
{

/// The switch `but_Colours` in the header, on which the user chooses the colours of all programs: as the
/// desktop has them, light, dark, or of high contrast. The choice is the user's and outlives the run.
class AppColours
{
public:
    explicit AppColours(phial::Form& form);
    AppColours(const AppColours&) = delete;
    AppColours& operator=(const AppColours&) = delete;

    /// Says on the switch what is chosen, in the language in force.
    void TRANSLATE();

private:
    void chooseNext();

    phial::Form& form_;
    phial::Connection pressing_;
};

} // namespace learning
