#pragma once

#include "core/CoreTokenList.h"
#include "visual/FormDesign.h"
#include "visual/ctl_Button.h"
#include "visual/ctl_CmdBar.h"

#include <functional>
#include <utility>
#include <vector>

namespace phial
{

/// A form as its `frm_…` holds it: made from its design, wired to the handlers of whoever holds it, and
/// discarded at the end. What a handler touches may be declared behind it: when it ends, no handler runs any
/// more.
///
///     frm_Question::frm_Question() : form_(layout::Design)
///     {
///         form_.on(form_->TRANSLATE, [this] { TRANSLATE(); });
///         form_.press(u"but_Again", [this] { ask(); });
///         form_.command(u"bar_Buttons", u"DIALOG.OK();", [this] { confirm(); });
///         TRANSLATE();
///     }
class DesignedForm
{
public:
    explicit DesignedForm(const FormDesign& design);
    ~DesignedForm();
    DesignedForm(const DesignedForm&) = delete;
    DesignedForm& operator=(const DesignedForm&) = delete;

    Form& operator*() const { return *form_; }
    Form* operator->() const { return form_.get(); }
    const std::shared_ptr<Form>& pointer() const { return form_; }

    /// Puts up the controls of a further table.
    void add(std::span<const ControlDesign> controls);

    /// Runs the handler whenever the event is raised.
    template <typename... Args, typename Handler>
    void on(Event<Args...>& event, Handler&& handler)
    {
        connections_ += event.connect(std::forward<Handler>(handler));
    }
    /// The same for a push button by its name.
    void press(StringView button, std::function<void()> handler);
    /// The same for a button of a command bar, by its key text without regard to case.
    void command(StringView bar, StringView key, std::function<void()> handler);

    /// The buffer of the form's texts in both languages, for cls_Language::Form.
    CoreTokenList& texts() { return texts_; }
    /// What screen readers are told of the controls that say it in their design; `say` gives the part in
    /// force of "German|English".
    void speak(const std::function<String(StringView)>& say) const;

private:
    void closeByEscape(KeyEvent& event) const;

    std::shared_ptr<Form> form_;
    std::vector<std::span<const ControlDesign>> designs_;
    CoreTokenList texts_;
    Connections connections_;
};

} // namespace phial
