#pragma once

#include "app/InstalledTree.h"
#include "core/Platform.h"
#include "core/SessionState.h"
#include "core/String.h"

#include <memory>
#include <typeindex>
#include <unordered_map>

namespace phial
{

class cls_App;
class cls_Language;

/// One run of a program: everything that belongs to the process and to no single object. A program or a test
/// opens one with its platform; one is open at a time, and the next starts afresh.
///
/// Its end runs DEINIT of the root while `QVAPP()` still answers, and then drops the root, the shared forms,
/// the language, and the core's state with the platform, in this order. From then on `QVAPP()` raises 91.
class Session
{
public:
    /// If an installation tree belongs to the place of the program's file (see InstallationTree.h), or else
    /// one was installed with the library (InstalledTree.h), the session begins with it as the current
    /// folder; otherwise with the current folder of the process. Raises 5 when another session is open.
    explicit Session(Platform platform);
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    /// The open session; raises 91 when none is.
    static Session& current();

    /// The one root, made when first asked for; raises 91 once the session is ending.
    const std::shared_ptr<cls_App>& root();
    /// The one language object, made when first asked for.
    const std::shared_ptr<cls_Language>& language();

    /// The hidden form of that class which all subsystems share, made when first asked for.
    template <typename FormClass>
    std::shared_ptr<FormClass> sharedForm()
    {
        auto& form = sharedForms_[typeid(FormClass)];
        if (!form) {
            form = std::make_shared<FormClass>();
        }
        return std::static_pointer_cast<FormClass>(form);
    }

    /// The same, but null when it has not been made yet.
    template <typename FormClass>
    std::shared_ptr<FormClass> existingSharedForm() const
    {
        const auto entry = sharedForms_.find(typeid(FormClass));
        return entry == sharedForms_.end() ? nullptr : std::static_pointer_cast<FormClass>(entry->second);
    }

private:
    void goToTreeNearProgram();

    SessionState state_;
    std::shared_ptr<cls_Language> language_;
    std::unordered_map<std::type_index, std::shared_ptr<void>> sharedForms_;
    std::shared_ptr<cls_App> root_;
    bool ending_ = false;
};

} // namespace phial
