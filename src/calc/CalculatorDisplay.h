#pragma once

#include "calc/ExpressionSolver.h"

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace phial
{

/// What has come of a key of the calculator.
enum class CalculatorAnswer : std::uint8_t {
    Done,
    Ignored, ///< there was nothing to do, such as for an empty memory
    NoRoom,  ///< the text would not have gone onto the display whole, so nothing has changed
    Failed,  ///< the term cannot be worked out, and the display says so
};

/// With which digits a result is shown.
enum class ResultDigits : std::uint8_t {
    All,
    Significant, ///< as many as the numbers of the term allow, see SignificantDigits.h
};

/// The calculator's line and what its keys make of it; it knows no form. What stands on the line is the term,
/// so a digit behind a result belongs to the result; only a line of "0" gives way to what is typed.
///
/// A line has room for 20 signs. No key cuts a number: what would not go onto the line whole is refused, and
/// a result has as many digits as there is room for, with its exponent.
class CalculatorDisplay
{
public:
    static constexpr std::size_t Room = 20;
    static constexpr std::int32_t Memories = 4;
    /// What stands on the line behind a term that has failed.
    static constexpr StringView Error = u"ERROR";

    /// Numbers are written with the decimal sign of `locale`; comma and point are read. `random` as for the
    /// solver.
    explicit CalculatorDisplay(std::shared_ptr<RandomSource> random = nullptr,
                               const Locale& locale = currentLocale());

    /// Names at even indices and their values behind them, as for ExpressionSolver::SOLVE; keys that stand
    /// for a variable add its name. A value that is no number makes each term fail.
    void variables(std::vector<Variant> value) { variables_ = std::move(value); }
    const std::vector<Variant>& variables() const { return variables_; }

    /// All at first. OK and the memories keep the value of the term whatever is shown.
    ResultDigits digits() const { return digits_; }
    void digits(ResultDigits value) { digits_ = value; }

    /// Puts a text onto the line: trimmed, with a "0" before a decimal sign at its beginning, without the "0"
    /// of "0log", and cut to the line's room.
    void show(StringView text);
    /// What stands there, without blanks around it.
    const String& text() const { return text_; }
    bool isFailed() const { return text_ == Error; }
    /// The term behind an Error, which "<-" brings back; otherwise empty.
    const String& failedTerm() const { return failedTerm_; }
    /// Whether no key has been pressed since the line was filled by a result or from outside.
    bool isFresh() const { return isFresh_; }

    /// A key, by its text:
    ///
    ///     0 … 9 ( ) + - ^   is added; a line of "0" is emptied before
    ///     , .               the locale's decimal sign, likewise
    ///     log               "log(", likewise
    ///     / :               "/" is added
    ///     * r               "*" is added
    ///     (-)               "-" goes to the front, or away from there; a line of "0" becomes "-"
    ///     <-                the last sign goes; behind an Error the term comes back
    ///     CE                the line becomes "0"
    ///     =                 the line becomes its result
    ///     STO1 … STO4       likewise, and the result is kept in that memory
    ///     OK                the result becomes `result`
    ///
    /// An Error counts as "0", but "=", OK and the memories leave it alone. Another text is ignored.
    CalculatorAnswer press(StringView key);
    /// The key for a typed character; empty when there is none.
    static StringView keyFor(char16_t character);

    /// Adds what a memory holds (counted from 0), a variable's name, or a text from the clipboard. The first
    /// two are multiplied with what stands before them when that is a value. A text with anything but
    /// numbers, operators and brackets in it is ignored.
    CalculatorAnswer recall(std::int32_t memory);
    CalculatorAnswer addVariable(StringView name);
    CalculatorAnswer paste(StringView text);
    /// Adds a molar mass to the sum on the line, or multiplies what stands there with that of a formula.
    CalculatorAnswer addMass(double mass);
    CalculatorAnswer addFormulaMass(double mass) { return appendFactor(fitted(mass)); }

    /// None for an empty memory. These raise 9 for one that is not there.
    const std::optional<double>& memory(std::int32_t memory) const { return memories_.at(checked(memory)); }
    void clear(std::int32_t memory) { memories_.at(checked(memory)).reset(); }

    /// The value of the last term: -1 where that has failed.
    double value() const { return value_; }
    /// What OK has kept; none before, and none behind a term that has failed.
    const std::optional<double>& result() const { return result_; }
    /// The solver's message on the last term; empty when all went well.
    const String& solveError() const { return solver_.SolveError(); }
    /// The solver itself, for terms that are not on the line.
    ExpressionSolver& solver() { return solver_; }

    /// The number with as many of its 15 significant digits as the room has place for.
    String fitted(double value) const;

private:
    static std::size_t checked(std::int32_t memory);
    CalculatorAnswer append(StringView text);
    CalculatorAnswer appendFactor(StringView text);
    CalculatorAnswer put(StringView text);
    CalculatorAnswer type(StringView key);
    CalculatorAnswer swapSign();
    CalculatorAnswer dropLast();
    CalculatorAnswer store(std::int32_t memory);
    bool evaluate();
    CalculatorAnswer fail();
    void showResult();
    bool isNought() const { return text_ == u"0" || isFailed(); }

    ExpressionSolver solver_;
    char16_t decimalSign_;
    std::vector<Variant> variables_;
    String text_ = u"0";
    String failedTerm_;
    bool isFresh_ = true;
    ResultDigits digits_{};
    std::array<std::optional<double>, Memories> memories_;
    double value_ = 0;
    std::optional<double> result_;
};

} // namespace phial
