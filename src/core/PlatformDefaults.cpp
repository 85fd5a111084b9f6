#include "core/AudioOutput.h"
#include "core/Clock.h"
#include "core/CoreCursors.h"
#include "core/CoreDialogs.h"
#include "core/CoreDisplay.h"
#include "core/CoreFolders.h"
#include "core/CoreFormDocument.h"
#include "core/CoreMachine.h"
#include "core/CoreNetClient.h"
#include "core/CoreTextBoxOps.h"
#include "core/CoreWindowOps.h"
#include "core/Environment.h"
#include "core/FileSystem.h"
#include "core/InterCom.h"
#include "core/MemorySettingsStore.h"
#include "core/NativePath.h"
#include "core/Platform.h"
#include "core/ProgramMixer.h"
#include "core/RandomSource.h"
#include "core/RecordSeal.h"
#include "core/RuntimeError.h"
#include "core/Shell.h"
#include "core/StandardEventPump.h"

#include <bit>
#include <chrono>
#include <cstdlib>
#include <ctime>
#include <iostream>
#include <random>
#include <thread>

namespace phial
{

namespace
{

class NoWindows : public CoreWindowOps
{
public:
    std::int32_t ScreenTop(WindowHandle) const override { return 0; }
    std::int32_t ScreenLeft(WindowHandle) const override { return 0; }
    std::int32_t ScreenBottom(WindowHandle) const override { return 0; }
    std::int32_t ScreenRight(WindowHandle) const override { return 0; }
    void SetTranslucent(WindowHandle, std::int32_t, TranslucentMode, Colour) override {}
    void TaskbarVisible(bool) override {}
};

class NoDisplay : public CoreDisplay
{
public:
    std::int32_t CursorX() const override { return 0; }
    std::int32_t CursorY() const override { return 0; }
    bool TellsCursor() const override { return false; }
    std::int32_t Width() const override { return 0; }
    std::int32_t Height() const override { return 0; }
    std::optional<std::int32_t> TextHeight() const override { return std::nullopt; }
    bool ReducesMotion() const override { return false; }
    bool BlinksCaret() const override { return true; }
};

class NoCursors : public CoreCursors
{
public:
    std::shared_ptr<Picture> Load(StringView, std::int32_t, bool, bool) override { return nullptr; }
};

class NoAudio : public AudioOutput
{
public:
    bool available() const override { return false; }
    Voice start(std::shared_ptr<const Sound>) override { return Voice::None; }
    void gain(double) override {}
    void stop(Voice) override {}
    bool isPlaying(Voice) const override { return false; }
    void waitForEnd(Voice) override {}
};

class NoTextBoxes : public CoreTextBoxOps
{
public:
    void Prepare(TextBox&) override {}
};

class NoShell : public Shell
{
public:
    bool open(WindowHandle, StringView) override { return false; }
    std::int64_t start(const ProgramCall&) override { return 0; }
    std::unique_ptr<RunningProgram> startWatched(const ProgramCall&) override { return nullptr; }
};

class NoNetwork : public CoreNetClient
{
public:
    CoreNetOptions& Options() override { return options_; }
    void EnableReceive(bool) override {}
    void OpenPort(std::int32_t) override { raise(); }
    void Close() override {}
    String Request(StringView, StringView, std::int32_t, const CoreParameters*, bool, StringView) override
    {
        raise();
    }
    void ShowMonitor() override {}

private:
    [[noreturn]] static void raise()
    {
        throw RuntimeError(ErrorNumber::DeviceUnavailable, u"this program has no network");
    }

    CoreNetOptions options_;
};

class NobodyToReach : public InterCom
{
public:
    bool Send(StringView, std::int32_t, StringView) override { return false; }
};

class SystemClock : public Clock
{
public:
    double seconds() const override
    {
        const auto sinceStart = std::chrono::steady_clock::now().time_since_epoch();
        return std::chrono::duration<double>(sinceStart).count();
    }

    Moment moment() const override
    {
        const std::time_t now = std::time(nullptr);
        const std::tm* const local = std::localtime(&now); // NOLINT(concurrency-mt-unsafe): one thread
        return Moment::fromCalendar({local->tm_year + 1900, local->tm_mon + 1, local->tm_mday, local->tm_hour,
                                     local->tm_min, std::min(local->tm_sec, 59)});
    }

    void sleep(double seconds) override
    {
        if (seconds > 0) {
            std::this_thread::sleep_for(std::chrono::duration<double>(seconds));
        }
    }
};

class ProcessEnvironment : public Environment
{
public:
    String variable(StringView name) const override
    {
        const char* const value =
            std::getenv(toUtf8(name).c_str()); // NOLINT(concurrency-mt-unsafe): one thread
        if (value == nullptr) {
            return {};
        }
        const std::string_view text(value);
        const bool isPath = text.starts_with('/') && text.find(':') == std::string_view::npos;
        return isPath ? systemPath(std::filesystem::path(text)) : fromUtf8(text);
    }
};

class StandardRandom : public RandomSource
{
public:
    double next() override { return std::generate_canonical<double, 53>(engine_); }
    void seed(double value) override { engine_.seed(std::bit_cast<std::uint64_t>(value)); }

private:
    std::mt19937_64 engine_{std::random_device{}()};
};

void writeToStandardError(const std::exception& error)
{
    std::cerr << "error: " << error.what() << '\n';
}

template <typename Service, typename Default>
void fill(std::shared_ptr<Service>& entry)
{
    if (!entry) {
        entry = std::make_shared<Default>();
    }
}

} // namespace

Platform withDefaults(Platform platform)
{
    fill<CoreWindowOps, NoWindows>(platform.windows);
    fill<CoreDisplay, NoDisplay>(platform.display);
    fill<CoreCursors, NoCursors>(platform.cursors);
    fill<AudioOutput, NoAudio>(platform.audio);
    fill<CoreTextBoxOps, NoTextBoxes>(platform.textBoxes);
    fill<Shell, NoShell>(platform.shell);
    fill<SettingsStore, MemorySettingsStore>(platform.settings);
    fill<Clock, SystemClock>(platform.clock);
    fill<Environment, ProcessEnvironment>(platform.environment);
    fill<RandomSource, StandardRandom>(platform.random);
    fill<FileSystem, NativeFileSystem>(platform.files);
    if (!platform.mixer) {
        platform.mixer = std::make_shared<ProgramMixer>(platform.audio);
    }
    if (!platform.reportError) {
        platform.reportError = writeToStandardError;
    }
    if (!platform.pump) {
        platform.pump = std::make_shared<StandardEventPump>(platform.clock, platform.reportError);
    }
    if (!platform.newNetClient) {
        platform.newNetClient = [] { return std::make_shared<NoNetwork>(); };
    }
    if (!platform.newFormDocument) {
        platform.newFormDocument = []() -> std::shared_ptr<CoreFormDocument> {
            throw RuntimeError(ErrorNumber::ObjectNotSet);
        };
    }
    if (!platform.newInterCom) {
        platform.newInterCom = [] { return std::make_shared<NobodyToReach>(); };
    }
    return platform;
}

} // namespace phial
