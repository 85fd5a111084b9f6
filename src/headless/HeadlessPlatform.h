#pragma once

#include "core/Platform.h"
#include "core/StandardEventPump.h"
#include "headless/FakeAudio.h"
#include "headless/FakeClock.h"
#include "headless/FakeDisplay.h"
#include "headless/FakeFolders.h"
#include "headless/FakeForms.h"
#include "headless/FakeMachine.h"
#include "headless/FaultyFileSystem.h"
#include "headless/FixedRandom.h"
#include "headless/HeadlessVisualHost.h"
#include "headless/MapEnvironment.h"
#include "headless/RecordingCursors.h"
#include "headless/RecordingInterCom.h"
#include "headless/RecordingSettings.h"
#include "headless/RecordingShell.h"
#include "headless/RecordingTextBoxes.h"
#include "headless/RecordingWindowOps.h"
#include "headless/ScriptedDialogs.h"
#include "headless/ScriptedNetClient.h"

#include <functional>
#include <memory>
#include <vector>

namespace phial::headless
{

/// The whole outside, scripted and recorded. A test opens its session with `platform()` and plays the outside
/// through the parts; the session may outlive this object.
class HeadlessPlatform
{
public:
    /// Takes the description of whatever a test must not let pass: an unexpected box, a handler's error.
    using FailureHandler = ScriptedDialogs::FailureHandler;

    /// The special folders lie below `root`, as the system writes paths, with a backslash at its end. Without
    /// a handler failures are raised as error 5.
    explicit HeadlessPlatform(String root, FailureHandler onFailure = {});

    Platform platform() const;

    /// Lets time pass, with timers and posted tasks running.
    void advance(double seconds) { pump_->pumpFor(seconds); }
    /// Runs what is pending, without letting time pass.
    void runPending() { pump_->pumpFor(0); }

    ScriptedDialogs& dialogs() { return *dialogs_; }
    FakeFolders& folders() { return *folders_; }
    FakeMachine& machine() { return *machine_; }
    RecordingWindowOps& windows() { return *windows_; }
    FakeDisplay& display() { return *display_; }
    RecordingCursors& cursors() { return *cursors_; }
    FakeAudio& audio() { return *audio_; }
    RecordingTextBoxes& textBoxes() { return *textBoxes_; }
    RecordingShell& shell() { return *shell_; }
    RecordingSettings& settings() { return *settings_; }
    FakeClock& clock() { return *clock_; }
    MapEnvironment& environment() { return *environment_; }
    FixedRandom& random() { return *random_; }
    FaultyFileSystem& files() { return *files_; }
    RecordingInterCom& interCom() { return *interCom_; }
    ScriptedNetwork& network() { return *network_; }
    FakeForms& forms() { return *forms_; }
    HeadlessVisualHost& visual() { return *visual_; }

private:
    FailureHandler onFailure_;
    std::shared_ptr<ScriptedDialogs> dialogs_;
    std::shared_ptr<FakeFolders> folders_;
    std::shared_ptr<FakeMachine> machine_ = std::make_shared<FakeMachine>();
    std::shared_ptr<RecordingWindowOps> windows_ = std::make_shared<RecordingWindowOps>();
    std::shared_ptr<FakeDisplay> display_ = std::make_shared<FakeDisplay>();
    std::shared_ptr<RecordingCursors> cursors_ = std::make_shared<RecordingCursors>();
    std::shared_ptr<RecordingTextBoxes> textBoxes_ = std::make_shared<RecordingTextBoxes>();
    std::shared_ptr<RecordingShell> shell_ = std::make_shared<RecordingShell>();
    std::shared_ptr<RecordingSettings> settings_ = std::make_shared<RecordingSettings>();
    std::shared_ptr<FakeClock> clock_ = std::make_shared<FakeClock>();
    std::shared_ptr<FakeAudio> audio_ = std::make_shared<FakeAudio>(clock_);
    std::shared_ptr<MapEnvironment> environment_ = std::make_shared<MapEnvironment>();
    std::shared_ptr<FixedRandom> random_ = std::make_shared<FixedRandom>();
    std::shared_ptr<FaultyFileSystem> files_;
    std::shared_ptr<RecordingInterCom> interCom_ = std::make_shared<RecordingInterCom>();
    std::shared_ptr<ScriptedNetwork> network_ = std::make_shared<ScriptedNetwork>();
    std::shared_ptr<FakeForms> forms_ = std::make_shared<FakeForms>();
    std::function<void(const std::exception&)> reportError_;
    std::shared_ptr<StandardEventPump> pump_;
    std::shared_ptr<HeadlessVisualHost> visual_;
};

} // namespace phial::headless
