#include "calc/TermReading.h"

#include "calc/TermPieces.h"

#include <algorithm>
#include <vector>

namespace phial
{

namespace
{

struct SpokenSign {
    StringView sign;
    StringView german;
    StringView english;
};

constexpr SpokenSign SpokenSigns[] = {
    {u"+", u"plus", u"plus"},
    {u"-", u"minus", u"minus"},
    {u"*", u"mal", u"times"},
    {u"/", u"geteilt durch", u"divided by"},
    {u"^", u"hoch", u"to the power of"},
    {u"%", u"Rest bei Teilung durch", u"modulo"},
    {u"(", u"Klammer auf", u"open bracket"},
    {u")", u"Klammer zu", u"close bracket"},
    {u"log", u"Logarithmus von", u"logarithm of"},
};

const PieceReading* readingOf(StringView piece, std::span<const PieceReading> readings)
{
    const auto found = std::ranges::find_if(
        readings, [&](const PieceReading& reading) { return equalsIgnoringCase(reading.piece, piece); });
    return found == readings.end() ? nullptr : &*found;
}

struct Mantissa {
    StringView digits;
    StringView exponent; ///< without "+"; empty for a number without one
};

Mantissa partsOf(StringView number)
{
    const std::size_t letter = number.find_first_of(u"Ee");
    if (letter == StringView::npos) {
        return {number, {}};
    }
    StringView exponent = number.substr(letter + 1);
    if (exponent.starts_with(u'+')) {
        exponent.remove_prefix(1);
    }
    return {number.substr(0, letter), exponent};
}

String withMinus(StringView number)
{
    return replaced(String(number), u"-", u"−");
}

/// Walks over a term's pieces and writes them.
class TermWriter
{
public:
    TermWriter(StringView term, std::span<const PieceReading> readings)
        : pieces_(piecesOf(term)), readings_(readings)
    {
    }

    String written()
    {
        for (at_ = 0; at_ < pieces_.size(); ++at_) {
            write(pieces_[at_]);
        }
        return text_;
    }

private:
    using Kind = TermPiece::Kind;

    void write(const TermPiece& piece)
    {
        if (piece.kind == Kind::Operator) {
            writeOperator(piece);
        } else if (const auto* reading = readingOf(piece.text, readings_)) {
            text_ += reading->reading;
        } else if (piece.kind == Kind::Number) {
            writeNumber(piece.text);
        } else {
            text_ += piece.text;
        }
    }

    /// A sign in front of a value stands beside it, an operator between two blanks.
    void writeOperator(const TermPiece& piece)
    {
        if (piece.text == u"^") {
            writePower();
        } else if (piece.isSign() && !isBehindValue()) {
            text_ += withMinus(piece.text);
        } else {
            const String sign(piece.text == u"*"   ? StringView(u"·")
                              : piece.text == u"/" ? StringView(u"÷")
                              : piece.text == u"-" ? StringView(u"−")
                                                   : piece.text);
            text_ += u" " + sign + u" ";
        }
    }

    void writeNumber(StringView number)
    {
        const auto [digits, exponent] = partsOf(number);
        text_ += digits;
        if (!exponent.empty()) {
            text_ += u" · 10<sup>" + withMinus(exponent) + u"</sup>";
        }
    }

    /// A single number, with its sign, is raised.
    void writePower()
    {
        std::size_t number = at_ + 1;
        if (number < pieces_.size() && pieces_[number].isSign()) {
            ++number;
        }
        if (number >= pieces_.size() || pieces_[number].kind != Kind::Number ||
            !partsOf(pieces_[number].text).exponent.empty()) {
            text_ += u"^";
            return;
        }
        text_ += u"<sup>";
        for (++at_; at_ < number; ++at_) {
            text_ += withMinus(pieces_[at_].text);
        }
        text_ += String(pieces_[number].text) + u"</sup>";
    }

    bool isBehindValue() const
    {
        return at_ > 0 && pieces_[at_ - 1].kind != Kind::Operator && pieces_[at_ - 1].kind != Kind::Opening;
    }

    std::vector<TermPiece> pieces_;
    std::span<const PieceReading> readings_;
    std::size_t at_ = 0;
    String text_;
};

template <typename Word>
String spokenPieces(const std::vector<TermPiece>& pieces, Word word)
{
    String text;
    for (const TermPiece& piece : pieces) {
        text += (text.empty() ? u"" : u" ") + word(piece);
    }
    return text;
}

} // namespace

String readableTerm(StringView term, std::span<const PieceReading> readings)
{
    return TermWriter(term, readings).written();
}

String spokenTerm(StringView term, std::span<const PieceReading> readings)
{
    const std::vector<TermPiece> pieces = piecesOf(term);
    const auto said = [&](StringView SpokenSign::*language, StringView power) {
        return spokenPieces(pieces, [&](const TermPiece& piece) -> String {
            const auto* const sign = std::ranges::find_if(SpokenSigns, [&](const SpokenSign& spoken) {
                return equalsIgnoringCase(spoken.sign, piece.text);
            });
            if (sign != std::end(SpokenSigns)) {
                return String(sign->*language);
            }
            if (const auto* reading = readingOf(piece.text, readings)) {
                return reading->reading;
            }
            const auto [digits, exponent] = partsOf(piece.text);
            return piece.kind == TermPiece::Kind::Number && !exponent.empty()
                       ? String(digits) + String(power) + String(exponent)
                       : String(piece.text);
        });
    };
    return said(&SpokenSign::german, u" mal 10 hoch ") + u"|" +
           said(&SpokenSign::english, u" times 10 to the power of ");
}

} // namespace phial
