#include "qt/sound/ModuleMessages.h"

#include <QLoggingCategory>

#include <gtest/gtest.h>

namespace
{

class ModuleMessages : public ::testing::Test
{
protected:
    ModuleMessages()
    {
        phial::qt::silenceSoundModule();
        testing::internal::CaptureStderr();
    }

    static std::string written() { return testing::internal::GetCapturedStderr(); }
};

TEST_F(ModuleMessages, WhatTheModuleWritesOfALostServerIsNotTold)
{
    const QLoggingCategory output("qt.multimedia.pulseaudio.output");
    qCWarning(output) << "pa_stream_begin_write error: Connection terminated";
    qWarning() << "QAudioSink(pulseaudio): failed to start";
    qWarning("PulseAudioService: pa_context_connect() failed");
    EXPECT_EQ(written(), "");
}

TEST_F(ModuleMessages, OtherWarningsAreTold)
{
    const QLoggingCategory other("qt.widgets");
    qCWarning(other) << "a pa_stream_begin_write of others";
    qWarning("Of PulseAudioService: nothing");
    EXPECT_EQ(written(), "qt.widgets: a pa_stream_begin_write of others\nOf PulseAudioService: nothing\n");
}

TEST_F(ModuleMessages, WhatTheModuleWritesOfItsFaultsIsTold)
{
    const QLoggingCategory output("qt.multimedia.pulseaudio.output");
    qCCritical(output) << "a fault";
    EXPECT_EQ(written(), "qt.multimedia.pulseaudio.output: a fault\n");
}

} // namespace
