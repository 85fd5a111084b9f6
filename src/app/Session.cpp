#include "app/Session.h"

#include "app/InstallationTree.h"
#include "app/cls_App.h"
#include "app/cls_Language.h"
#include "core/CorePathText.h"
#include "core/NativePath.h"
#include "core/RuntimeError.h"

#include <utility>

namespace phial
{

namespace
{

Session* openSession = nullptr;

} // namespace

Session::Session(Platform platform) : state_(std::move(platform))
{
    goToTreeNearProgram();
    openSession = this;
}

Session::~Session()
{
    if (root_) {
        root_->DEINIT();
    }
    ending_ = true;
    root_.reset();
    sharedForms_.clear();
    language_.reset();
    openSession = nullptr;
}

Session& Session::current()
{
    if (openSession == nullptr) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    return *openSession;
}

const std::shared_ptr<cls_App>& Session::root()
{
    if (ending_) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    if (!root_) {
        root_ = std::make_shared<cls_App>();
    }
    return root_;
}

const std::shared_ptr<cls_Language>& Session::language()
{
    if (!language_) {
        language_ = std::make_shared<cls_Language>();
    }
    return language_;
}

void Session::goToTreeNearProgram()
{
    const String& programFolder = state_.platform().programFolder;
    if (programFolder.empty()) {
        return;
    }
    if (const auto tree = installationTree::nearProgram(programFolder)) {
        state_.currentFolder().change(*tree);
    } else if (const char* const installed = InstalledTree::folder()) {
        const String folder = CorePathText::WithBackslash(systemPath(installed));
        if (installationTree::isRoot(folder)) {
            state_.currentFolder().change(folder);
        }
    }
}

} // namespace phial
