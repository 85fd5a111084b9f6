#pragma once

#include <cstdint>
#include <memory>

namespace phial
{
class cls_DataEvents;
class cls_DataScores;
} // namespace phial

namespace gallery
{

/// A highscore of so many pupils, the same each time.
std::shared_ptr<phial::cls_DataScores> sampleScores(std::int32_t count);

/// A log of so many actions, the same each time.
std::shared_ptr<phial::cls_DataEvents> sampleEvents(std::int32_t count);

} // namespace gallery
