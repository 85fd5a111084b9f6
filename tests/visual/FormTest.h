#pragma once

#include "headless/Hand.h"
#include "support/HeadlessSession.h"
#include "support/Raises.h"
#include "visual/Form.h"
#include "visual/Label.h"
#include "visual/TextBox.h"
#include "visual/VisualHost.h"
#include "visual/ctl_Button.h"

#include <gmock/gmock-more-matchers.h>
#include <string>
#include <vector>

namespace phial::test
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// A session with a form, and a log for what its handlers hear.
class FormTest : public HeadlessSession
{
protected:
    ~FormTest() override { form->discard(); }

    /// Writes a word into the log whenever the event is raised.
    void logs(Event<>& event, std::string word)
    {
        connections += event.connect([this, word] { log.push_back(word); });
    }

    std::vector<std::string> log; ///< outlives the form, whose end is logged too
    std::shared_ptr<Form> form = std::make_shared<Form>(u"frm_Test");
    Connections connections;
};

} // namespace phial::test
