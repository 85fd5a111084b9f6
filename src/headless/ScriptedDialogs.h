#pragma once

#include "core/CoreDialogs.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <vector>

namespace phial::headless
{

/// The boxes of `CoreDialogs`.
enum class Box : std::uint8_t { Info, Error, YesNo, Text, SaveFile, Done, Input };

StringView boxName(Box box);

/// A box that was shown.
struct ShownBox {
    Box box = Box::Info;
    String text; ///< for a file-save box the folder, for an input box the prompt
    String title;
    String detail; ///< the icon of an information box, the filter of a file-save box, an input box's default

    friend bool operator==(const ShownBox&, const ShownBox&) = default;
};

/// Dialogs that answer by script. A test says which boxes come, in order; any other box is a failure,
/// reported through a handler, and gets the most harmless answer: No, or the empty text.
class ScriptedDialogs : public CoreDialogs
{
public:
    /// Takes the description of a failure; the default raises it as error 5.
    using FailureHandler = std::function<void(const String&)>;

    explicit ScriptedDialogs(FailureHandler onFailure = {});

    /// The next box in turn. An empty text leaves the box's text open; otherwise it must be equal.
    void expect(Box box, String text = {});
    void expectYesNo(DialogAnswer answer, String text = {});
    void expectInput(String answer, String prompt = {});
    void expectSaveFile(String answer);

    /// Whether every expected box has come.
    bool isDone() const { return script_.empty(); }
    /// Reports the expected boxes that have not come, and forgets them.
    void checkDone();

    const std::vector<ShownBox>& shown() const { return shown_; }

    void Info(StringView pText, StringView pTitle, StringView pIcon) override;
    void Error(StringView pText, StringView pTitle) override;
    DialogAnswer YesNo(StringView pText, StringView pTitle) override;
    void Text(StringView pText, StringView pTitle) override;
    String SaveFile(StringView pFolder, StringView pTitle, StringView pFilter) override;
    void Done(StringView pText) override;
    String Input(StringView pPrompt, StringView pTitle, StringView pDefault) override;

private:
    struct Step {
        Box box = Box::Info;
        String text;
        String answer;
        DialogAnswer choice = DialogAnswer::No;
    };
    Step show(ShownBox box);

    FailureHandler onFailure_;
    std::deque<Step> script_;
    std::vector<ShownBox> shown_;
};

} // namespace phial::headless
