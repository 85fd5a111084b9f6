#include "app/cls_Language.h"

#include "app/FormTranslation.h"
#include "app/Settings.h"
#include "core/CoreMachine.h"
#include "core/CoreRegistry.h"
#include "core/CoreRoot.h"
#include "core/CoreText.h"
#include "core/Environment.h"
#include "core/Locale.h"
#include "core/SessionState.h"
#include "visual/Form.h"
#include "visual/VisualHost.h"

#include <vector>

namespace phial
{

namespace
{

constexpr StringView LanguageSetting = u"Language";
constexpr StringView StoredGerman = u"DE";
constexpr StringView StoredEnglish = u"EN";

/// The text that stands for a choice in the settings.
StringView stored(enm_LanguageC choice)
{
    switch (choice) {
    case ID_Language_German:
        return StoredGerman;
    case ID_Language_English:
        return StoredEnglish;
    case ID_Language_System:
        break;
    }
    return {};
}

/// Whether a locale's name is that of the language, alone or with a country.
bool names(StringView locale, StringView language)
{
    return equalsIgnoringCase(locale.substr(0, locale.find_first_of(u"_.@-")), language);
}

/// The first of the languages, divided by ":", that this system speaks.
bool prefersGerman(StringView languages)
{
    for (const StringView locale : split(languages, u":")) {
        if (names(locale, u"de") || names(locale, u"en")) {
            return names(locale, u"de");
        }
    }
    return false;
}

/// The user's language: as the environment names it, and where it names none as the desktop does.
bool systemSpeaksGerman()
{
    const Platform& platform = SessionState::current().platform();
    for (const StringView name : {u"LANGUAGE", u"LC_ALL", u"LC_MESSAGES", u"LANG"}) {
        const String value = platform.environment->variable(name);
        if (!value.empty()) {
            return prefersGerman(value);
        }
    }
    return platform.machine && platform.machine->UserLanguage() == LanguageGerman;
}

/// Asks each open form to translate itself. The list is copied, since a form may open or close others.
void translateOpenForms()
{
    const Forms& forms = visualHost().forms();
    std::vector<std::shared_ptr<phial::Form>> open;
    for (std::size_t index = 0; index < forms.Count(); ++index) {
        open.push_back(forms.Item(index));
    }
    for (const auto& form : open) {
        ignoringErrors([&] { callMember(*form, u"TRANSLATE"); });
    }
}

} // namespace

cls_Language::cls_Language()
{
    const String choice = coreRoot().CoreRegistry().CoreRegistryRead().ReadString(
        SettingsHive::CurrentUser, settings::path(LanguageSetting), {}, settings::TextLimit);
    if (choice.empty()) {
        detect();
    } else if (choice == StoredGerman) {
        current_ = ID_Language_German;
    } else if (choice == StoredEnglish) {
        current_ = ID_Language_English;
    }
    apply();
}

void cls_Language::CURRENT(enm_LanguageC value)
{
    if (value == current_) {
        return;
    }
    current_ = value;
    if (current_ == ID_Language_System) {
        detect();
    } else {
        effective_ = current_;
    }
    apply();
    ignoringErrors(translateOpenForms);
}

/// The system's language comes from the desktop, reduced to German or not German.
void cls_Language::detect()
{
    effective_ = systemSpeaksGerman() ? ID_Language_German : ID_Language_English;
    apply();
}

void cls_Language::apply()
{
    if (current_ != ID_Language_System) {
        effective_ = current_;
    }
    CoreRoot& core = coreRoot();
    core.CoreLocale().SetLanguage(effective_ == ID_Language_English ? LanguageEnglish : LanguageGerman);
    core.CoreRegistry().CoreRegistryWrite().WriteString(SettingsHive::CurrentUser,
                                                        settings::path(LanguageSetting), stored(current_));
}

String cls_Language::TRANSLATE(StringView pGerman, StringView pEnglisch, const Variant::Array& pVars) const
{
    String text(effective_ == ID_Language_German ? pGerman : pEnglisch);
    std::int32_t number = 0;
    for (const Variant& value : pVars) {
        ++number;
        text = CoreText::Replace(text, u"{" + Variant(number).toText() + u"}", value.toText());
    }
    return text;
}

String cls_Language::TRANSLATEAUTO(StringView pX) const
{
    constexpr StringView Separator = u"|";
    if (pX.find(Separator) == StringView::npos) {
        return String(pX);
    }
    return effective_ == ID_Language_German ? CoreStringOps::Before(pX, Separator)
                                            : CoreStringOps::After(pX, Separator);
}

void cls_Language::Form(Object& pForm)
{
    CoreTokenList buffer;
    Form(pForm, buffer);
}

void cls_Language::Form(Object& pForm, CoreTokenList& pTransBuffer)
{
    FormTranslation translation(pForm, pTransBuffer, effective_ == ID_Language_German);
    ignoringErrors([&] { translation.run(); });
    untranslated_ = translation.untranslated();
}

String cls_Language::DATEFORMAT() const
{
    return TRANSLATE(u"dd.mm.yyyy", u"dd-mm-yyyy");
}

String cls_Language::DATETIMEFORMAT() const
{
    return DATEFORMAT() + u" HH:MM";
}

String cls_Language::FILEADD(StringView pFile) const
{
    return CorePathText::WithoutExtension(pFile) + u"-" + TRANSLATE(u"de", u"en") + u"." +
           CorePathText::Extension(pFile);
}

} // namespace phial
