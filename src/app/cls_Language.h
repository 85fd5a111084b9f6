#pragma once

#include "core/CoreStringList.h"
#include "core/String.h"
#include "core/Variant.h"

#include <cstdint>

namespace phial
{

class CoreTokenList;
class Object;

enum enm_LanguageC : std::int32_t {
    ID_Language_System = 0,
    ID_Language_German = 1,
    ID_Language_English = 2,
};

/// The language in which the program speaks: `LNG()`.
///
/// Both languages stand side by side in the program, as a pair of texts, or as one text with the German and
/// the English part divided by "|". The choice is kept in the user's setting "Language": empty for the
/// system's language, "DE", or "EN".
class cls_Language
{
public:
    /// Reads the choice, and stores it again. Any other stored text counts as the system's language without
    /// asking what that is: EFFECTIVE is then 0, and TRANSLATE gives English.
    cls_Language();

    /// The choice. A change takes effect at once: it is stored, the core services follow, and every open form
    /// that has an operation TRANSLATE is asked to run it, its errors ignored. The present choice again
    /// changes nothing.
    enm_LanguageC CURRENT() const { return current_; }
    void CURRENT(enm_LanguageC value);

    /// The language in use, German or English.
    enm_LanguageC EFFECTIVE() const { return effective_; }

    /// The text of the pair in the language in use, with "{1}", "{2}" and so on replaced by the values in
    /// their order, each as text. A value that holds a later placeholder is replaced in its turn.
    String TRANSLATE(StringView pGerman, StringView pEnglisch, const Variant::Array& pVars = {}) const;

    /// The language's part of a text divided by "|"; a text without it comes back unchanged.
    String TRANSLATEAUTO(StringView pX) const;

    /// Puts all texts of a form in the language in use: its caption and those of its controls, which are
    /// written "German|English" at design time. Errors are ignored. A caller that translates a form again
    /// keeps the buffer, which then holds one token a text, its German and its English part; without one the
    /// parts that are not shown are lost. Only texts that differ are assigned.
    void Form(Object& pForm);
    void Form(Object& pForm, CoreTokenList& pTransBuffer);

    /// Texts of the form translated last that have no English part, as "key in form", for inspection.
    const CoreStringList& untranslated() const { return untranslated_; }

    /// Patterns of dates: "dd.mm.yyyy" in German, "dd-mm-yyyy" in English; with the time " HH:MM" behind.
    String DATEFORMAT() const;
    String DATETIMEFORMAT() const;

    /// A file name with the mark of the language before its extension: `a.wav` gives `a-de.wav`.
    String FILEADD(StringView pFile) const;

private:
    void detect();
    void apply();

    enm_LanguageC current_ = ID_Language_System;
    enm_LanguageC effective_ = ID_Language_System;
    CoreStringList untranslated_;
};

} // namespace phial
