#include "headless/HeadlessPlatform.h"

#include "core/RuntimeError.h"

#include <utility>

namespace phial::headless
{

HeadlessPlatform::HeadlessPlatform(String root, FailureHandler onFailure)
    : onFailure_(std::move(onFailure)), dialogs_(std::make_shared<ScriptedDialogs>(onFailure_)),
      folders_(std::make_shared<FakeFolders>(std::move(root))),
      files_(std::make_shared<FaultyFileSystem>(std::make_shared<NativeFileSystem>()))
{
    reportError_ = [onFailure = onFailure_](const std::exception& error) {
        const String failure = u"a handler raised: " + fromUtf8(error.what());
        if (!onFailure) {
            throw RuntimeError(ErrorNumber::InvalidArgument, failure);
        }
        onFailure(failure);
    };
    pump_ = std::make_shared<StandardEventPump>(clock_, reportError_);
    visual_ = std::make_shared<HeadlessVisualHost>(pump_, display_, onFailure_);
}

Platform HeadlessPlatform::platform() const
{
    Platform platform;
    platform.dialogs = dialogs_;
    platform.folders = folders_;
    platform.machine = machine_;
    platform.visual = visual_;
    platform.windows = windows_;
    platform.display = display_;
    platform.cursors = cursors_;
    platform.audio = audio_;
    platform.textBoxes = textBoxes_;
    platform.shell = shell_;
    platform.settings = settings_;
    platform.clock = clock_;
    platform.pump = pump_;
    platform.environment = environment_;
    platform.random = random_;
    platform.files = files_;
    platform.newNetClient = [network = network_, pump = pump_, clock = clock_] {
        return std::make_shared<ScriptedNetClient>(network, pump, clock);
    };
    platform.newFormDocument = [forms = forms_] { return forms->newDocument(); };
    platform.newInterCom = [interCom = interCom_] { return interCom; };
    platform.reportError = reportError_;
    return platform;
}

} // namespace phial::headless
