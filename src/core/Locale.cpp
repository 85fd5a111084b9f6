#include "core/Locale.h"

#include <utility>

namespace phial
{

namespace
{

const Locale*& localeInForce()
{
    static const Locale* locale = nullptr;
    return locale;
}

} // namespace

const Locale& currentLocale()
{
    static const Locale defaults;
    const Locale* locale = localeInForce();
    return locale != nullptr ? *locale : defaults;
}

LocaleBinding::LocaleBinding(const Locale& locale) : previous_(std::exchange(localeInForce(), &locale)) {}

LocaleBinding::~LocaleBinding()
{
    localeInForce() = previous_;
}

void CoreLocale::SetLanguage(std::int32_t pLanguage)
{
    locale_->language = pLanguage == LanguageEnglish ? LanguageEnglish : LanguageGerman;
}

} // namespace phial
