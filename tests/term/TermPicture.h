#pragma once

#include "core/String.h"
#include "headless/FixedTextMetrics.h"
#include "headless/RecordingBackend.h"
#include "visual/DrawDevice.h"

#include <memory>
#include <string>
#include <vector>

namespace phial::test
{

/// A surface on which terms are drawn in Tahoma 20, so that a character is 10 pixels wide (an index 9) and
/// the line 25 high; what was drawn comes back as short text.
class TermPicture
{
public:
    static constexpr double Size = 20;
    static constexpr double CharacterWidth = 10;
    static constexpr double LineHeight = 25;

    TermPicture();

    DrawDevice& device() { return device_; }
    /// The primitives as the recorder writes them.
    const std::vector<std::string>& lines() const { return backend_->lines(); }

    /// What was drawn, in order, divided by blanks:
    ///
    ///     SO@0       the characters "SO" in the line, from X 0 on
    ///     4@20v      lowered by 0.3 of the line at 0.9 of the size; 2-@20^ raised alike
    ///     a@0,12.5   at another height; i@18,10/12 at another size, too
    ///     Symbol:»@0 in another font; a@0* bold; a@0! red; "_" is a blank
    ///     line 0,12-10,12
    std::string runs() const;

private:
    std::shared_ptr<headless::RecordingBackend> backend_;
    DrawDevice device_;
};

} // namespace phial::test
