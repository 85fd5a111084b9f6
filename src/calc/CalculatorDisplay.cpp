#include "calc/CalculatorDisplay.h"

#include "calc/SignificantDigits.h"
#include "core/NumberText.h"
#include "core/RuntimeError.h"

#include <algorithm>
#include <utility>

namespace phial
{

namespace
{

constexpr StringView ErasableZero = u"0log";

bool isDecimalSign(char16_t unit)
{
    return unit == u',' || unit == u'.';
}

bool isLetter(char16_t unit)
{
    return (unit >= u'A' && unit <= u'Z') || (unit >= u'a' && unit <= u'z');
}

/// Whether a value ends there, so that another one needs an operator before it.
bool endsValue(char16_t unit)
{
    return isDigit(unit) || isDecimalSign(unit) || isLetter(unit) || unit == u')';
}

bool isTermSign(char16_t unit)
{
    return isDigit(unit) || isDecimalSign(unit) || StringView(u"+-*/^()Ee").find(unit) != StringView::npos;
}

/// How a text looks on the line, if that had room for all of it.
String asShown(StringView text)
{
    String shown = trimmed(text);
    if (!shown.empty() && isDecimalSign(shown.front())) {
        shown.insert(shown.begin(), u'0');
    }
    if (StringView(shown).starts_with(ErasableZero)) {
        shown.erase(0, 1);
    }
    return shown;
}

struct TypedKey {
    char16_t character;
    StringView key;
};

constexpr TypedKey TypedKeys[] = {
    {u'0', u"0"}, {u'1', u"1"}, {u'2', u"2"}, {u'3', u"3"},   {u'4', u"4"}, {u'5', u"5"}, {u'6', u"6"},
    {u'7', u"7"}, {u'8', u"8"}, {u'9', u"9"}, {u',', u","},   {u'.', u"."}, {u'(', u"("}, {u')', u")"},
    {u'+', u"+"}, {u'-', u"-"}, {u'*', u"*"}, {u'/', u"/"},   {u':', u":"}, {u'^', u"^"}, {u'°', u"^"},
    {u'=', u"="}, {u'×', u"*"}, {u'·', u"*"}, {u'l', u"log"}, {8, u"<-"},
};

/// A text from a table or a web page ends with tabs, line ends or fixed blanks.
StringView withoutBlankEnds(StringView text)
{
    constexpr StringView Blanks = u" \t\r\n\u00A0\u202F";
    const std::size_t first = text.find_first_not_of(Blanks);
    return first == StringView::npos ? StringView()
                                     : text.substr(first, text.find_last_not_of(Blanks) + 1 - first);
}

} // namespace

CalculatorDisplay::CalculatorDisplay(std::shared_ptr<RandomSource> random, const Locale& locale)
    : solver_(std::move(random), locale), decimalSign_(locale.decimalSign)
{
}

void CalculatorDisplay::show(StringView text)
{
    text_ = asShown(text).substr(0, Room);
    failedTerm_.clear();
    isFresh_ = true;
}

CalculatorAnswer CalculatorDisplay::press(StringView key)
{
    if (key == u"OK") {
        result_.reset();
        if (isFailed() || !evaluate()) {
            return CalculatorAnswer::Failed;
        }
        result_ = value_;
        return CalculatorAnswer::Done;
    }
    if (key == u"=") {
        if (isFailed() || !evaluate()) {
            return CalculatorAnswer::Failed;
        }
        showResult();
        return CalculatorAnswer::Done;
    }
    if (key.size() == 4 && key.starts_with(u"STO") && key[3] >= u'1' && key[3] <= u'4') {
        return store(key[3] - u'1');
    }
    return type(key);
}

StringView CalculatorDisplay::keyFor(char16_t character)
{
    const auto* const found = std::ranges::find(TypedKeys, character, &TypedKey::character);
    return found == std::end(TypedKeys) ? StringView() : found->key;
}

/// The keys that change the term.
CalculatorAnswer CalculatorDisplay::type(StringView key)
{
    if (key == u"CE") {
        return put(u"0");
    }
    if (key == u"<-") {
        return dropLast();
    }
    if (key == u"(-)") {
        return swapSign();
    }
    if (key == u"log") {
        return append(u"log(");
    }
    if (key == u"," || key == u".") {
        return append(StringView(&decimalSign_, 1));
    }
    if (key == u"*" || key == u"r" || key == u"/" || key == u":") {
        const String before = isFailed() ? String(u"0") : text_;
        return put(before + (key == u"*" || key == u"r" ? u"*" : u"/"));
    }
    const bool isAdded =
        key.size() == 1 && (isDigit(key[0]) || StringView(u"()+-^").find(key[0]) != StringView::npos);
    return isAdded ? append(key) : CalculatorAnswer::Ignored;
}

CalculatorAnswer CalculatorDisplay::append(StringView text)
{
    return put(isNought() ? String(text) : text_ + String(text));
}

CalculatorAnswer CalculatorDisplay::appendFactor(StringView text)
{
    const bool needsOperator = !isNought() && !text_.empty() && endsValue(text_.back());
    return append(needsOperator ? u"*" + String(text) : String(text));
}

CalculatorAnswer CalculatorDisplay::put(StringView text)
{
    String shown = asShown(text);
    if (shown.size() > Room) {
        return CalculatorAnswer::NoRoom;
    }
    text_ = std::move(shown);
    failedTerm_.clear();
    isFresh_ = false;
    return CalculatorAnswer::Done;
}

CalculatorAnswer CalculatorDisplay::swapSign()
{
    if (isNought()) {
        return put(u"-");
    }
    if (!text_.starts_with(u'-')) {
        return put(u"-" + text_);
    }
    return put(text_.size() == 1 ? String(u"0") : text_.substr(1));
}

CalculatorAnswer CalculatorDisplay::dropLast()
{
    if (isFailed()) {
        return put(std::exchange(failedTerm_, {}));
    }
    if (text_.empty()) {
        return CalculatorAnswer::Ignored;
    }
    return put(text_.substr(0, text_.size() - 1));
}

CalculatorAnswer CalculatorDisplay::store(std::int32_t memory)
{
    if (isFailed() || !evaluate()) {
        return CalculatorAnswer::Failed;
    }
    memories_.at(checked(memory)) = value_;
    showResult();
    return CalculatorAnswer::Done;
}

/// Works out the line. Without a value it says Error.
bool CalculatorDisplay::evaluate()
{
    const bool isRead = ignoringErrors([&] { solver_.SOLVE(text_, variables_, value_); });
    if (isRead && solver_.SolveError().empty()) {
        return true;
    }
    fail();
    return false;
}

void CalculatorDisplay::showResult()
{
    const auto significant = digits_ == ResultDigits::Significant
                                 ? inSignificantDigits(value_, text_, decimalSign_)
                                 : std::nullopt;
    show(significant && significant->size() <= Room ? *significant : fitted(value_));
}

CalculatorAnswer CalculatorDisplay::fail()
{
    failedTerm_ = std::exchange(text_, String(Error));
    value_ = -1;
    result_.reset();
    isFresh_ = false;
    return CalculatorAnswer::Failed;
}

CalculatorAnswer CalculatorDisplay::recall(std::int32_t memory)
{
    const auto& kept = this->memory(memory);
    return kept ? appendFactor(fitted(*kept)) : CalculatorAnswer::Ignored;
}

CalculatorAnswer CalculatorDisplay::addVariable(StringView name)
{
    return name.empty() ? CalculatorAnswer::Ignored : appendFactor(name);
}

CalculatorAnswer CalculatorDisplay::paste(StringView text)
{
    const StringView pasted = withoutBlankEnds(text);
    if (pasted.empty() || !std::ranges::all_of(pasted, isTermSign)) {
        return CalculatorAnswer::Ignored;
    }
    return append(pasted);
}

CalculatorAnswer CalculatorDisplay::addMass(double mass)
{
    const String text = fitted(mass);
    return isNought() ? put(text) : put(text_ + u"+" + text);
}

String CalculatorDisplay::fitted(double value) const
{
    return textInRoom(value, Room, decimalSign_);
}

std::size_t CalculatorDisplay::checked(std::int32_t memory)
{
    if (memory < 0 || memory >= Memories) {
        throw RuntimeError(ErrorNumber::IndexOutOfBounds);
    }
    return static_cast<std::size_t>(memory);
}

} // namespace phial
