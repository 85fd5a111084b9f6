#pragma once

#include "core/Object.h"

#include <cstdint>
#include <memory>

namespace phial
{

/// The control whose text a dialog edits. The exact name of its type, without regard to case, says under
/// which property the text stands:
///
///     clt_TermInput   Term
///     Label           Caption
///     RichTextbox     TextRTF, of which the plain text is edited
///     ctl_QVInput     Text of the field that it holds, and then its rules count for that
///     anything else   TEXT
///
/// The control is held weakly, and nothing is raised: one that has gone, that has no such property or that
/// refuses the text gives the empty text and is written to nowhere.
class TargetText
{
public:
    TargetText() = default;
    explicit TargetText(std::weak_ptr<Object> target) : target_(std::move(target)) {}

    /// The control; null when there is none or it has gone.
    ObjectPtr target() const { return target_.lock(); }

    String read() const;
    void write(const String& text) const;

    // What a field that stands in for the control takes over. Each has its default where the control does not
    // say.
    /// Whether the text may have several lines. A text field says so itself (MultiLine), a term has one line,
    /// and what shows a text but does not say can have several. One whose signs are hidden has one.
    bool takesLines() const;
    /// The greatest number of units, 0 for no limit.
    std::int32_t maxLength() const;
    bool locked() const;
    String passwordChar() const;

private:
    /// The control, or the field within it in which the text stands.
    ObjectPtr edited() const;

    std::weak_ptr<Object> target_;
};

} // namespace phial
