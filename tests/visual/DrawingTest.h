#pragma once

#include "headless/FixedTextMetrics.h"
#include "headless/RecordingBackend.h"
#include "visual/DrawDevice.h"

#include <gmock/gmock-matchers.h>
#include <gtest/gtest.h>
#include <memory>
#include <string>

namespace phial::test
{

/// A device of 100 by 60 pixels that records what is drawn.
class DrawingTest : public ::testing::Test
{
protected:
    std::string drawn() const { return recorder->text(); }

    std::shared_ptr<headless::FixedTextMetrics> metrics = std::make_shared<headless::FixedTextMetrics>();
    std::shared_ptr<headless::RecordingBackend> recorder =
        std::make_shared<headless::RecordingBackend>(PixelSize{100, 60}, metrics);
    DrawDevice device{recorder};
};

} // namespace phial::test
