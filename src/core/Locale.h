#pragma once

#include "core/String.h"

#include <cstdint>

namespace phial
{

/// Primary language numbers.
inline constexpr std::int32_t LanguageGerman = 7;
inline constexpr std::int32_t LanguageEnglish = 9;

/// The user's regional habits. The defaults are German.
struct Locale {
    /// The decimal sign in numbers turned to text: a comma or a point.
    char16_t decimalSign = u',';
    /// The language in force: LanguageGerman or LanguageEnglish. Names of months and days follow it.
    std::int32_t language = LanguageGerman;
    /// Patterns of moments (see formatPattern). One turned to text plainly has the short date and the long
    /// time.
    String shortDate = u"dd.mm.yyyy";
    String shortTime = u"HH:MM";
    String longTime = u"HH:MM:SS";
};

/// The locale in force: that of the innermost LocaleBinding, or the defaults of `Locale` without one.
const Locale& currentLocale();

/// Puts a locale in force as long as it lives. The session holds one; the locale must outlive it. Bindings
/// nest and end in the reverse order.
class LocaleBinding
{
public:
    explicit LocaleBinding(const Locale& locale);
    ~LocaleBinding();
    LocaleBinding(const LocaleBinding&) = delete;
    LocaleBinding& operator=(const LocaleBinding&) = delete;

private:
    const Locale* previous_;
};

/// The language of the core services, on the session's locale.
class CoreLocale
{
public:
    explicit CoreLocale(Locale& locale) : locale_(&locale) {}

    /// Takes a primary language number: 9 is English, every other number counts as German. Decimal sign and
    /// patterns stay, since they are the user's and not the program's.
    void SetLanguage(std::int32_t pLanguage);
    std::int32_t Language() const { return locale_->language; }

private:
    Locale* locale_;
};

} // namespace phial
