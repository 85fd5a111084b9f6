#pragma once

#include "core/CoreStringList.h"
#include "core/CoreTokenList.h"
#include "core/Object.h"

#include <span>
#include <vector>

namespace phial
{

class Variant;

/// One walk over a form that puts its texts in the language in force: the form's caption, and of each control
/// its texts, buttons, panels, items and columns, whichever it has. Everything is reached by name, so a form
/// of any class takes part.
///
/// Texts are written "German|English". The first walk gathers them into a buffer, one token a text with both
/// parts as values; every walk then assigns the part in force, where it differs from what is shown. A text
/// that a control had already in one language only is left alone.
class FormTranslation
{
public:
    /// `german` says which part of a pair is taken. A buffer that holds tokens is not gathered again.
    FormTranslation(Object& form, CoreTokenList& buffer, bool german);

    /// A collection that controls have, whose members have texts.
    struct Collection {
        StringView name;
        std::span<const StringView> texts;
    };

    void run();

    /// Texts that nobody has translated, as "key in form".
    const CoreStringList& untranslated() const { return untranslated_; }

private:
    /// A text of the form: the member that holds it, and the key under which the buffer knows it.
    struct Place {
        ObjectPtr object;
        StringView property;
        String key;
    };

    /// What objects of a class have texts in.
    struct Kind {
        MemberTable members;
        std::vector<StringView> texts;
        std::vector<Collection> collections;
    };

    void gather(const std::vector<Place>& places);
    std::vector<ObjectPtr> controls();
    const Kind& kindOf(const Object& control);
    void findPlaces(const ObjectPtr& control, std::vector<Place>& places);
    static void findPlacesWithin(Object& control, const Collection& collection, StringView controlKey,
                                 std::vector<Place>& places);
    void note(StringView key, const String& text);
    void noteUntranslated(StringView key, const String& text);
    void assignText(Object& object, StringView key, StringView property);
    String lookUp(StringView key, const String& standard) const;

    Object& form_;
    CoreTokenList& buffer_;
    bool german_;
    String formName_;
    std::vector<Kind> kinds_;
    CoreStringList untranslated_;
};

} // namespace phial
