#include "term/TermPicture.h"

#include <cmath>
#include <regex>
#include <stdexcept>

namespace phial::test
{

namespace
{

/// One text primitive.
struct Run {
    double x;
    double y;
    std::string text;
    std::string font;
    double size;
    bool bold;
    bool red;

    std::size_t units() const { return fromUtf8(text).size(); }
    double end() const
    {
        return x + static_cast<double>(units()) * size * headless::FixedTextMetrics::WidthPerPoint;
    }
    bool goesOnIn(const Run& next) const
    {
        return next.y == y && next.font == font && next.size == size && next.bold == bold &&
               next.red == red && std::abs(next.x - end()) < 1e-6;
    }
};

std::string number(double value)
{
    std::string text = std::to_string(value);
    text.erase(text.find_last_not_of('0') + 1);
    return text.ends_with('.') ? text.substr(0, text.size() - 1) : text;
}

Run parseText(const std::string& line)
{
    static const std::regex Pattern(R"re(text ([-\d.]+),([-\d.]+) "(.*)" (\S+) ([\d.]+)( bold)? (#\w+))re");
    std::smatch parts;
    if (!std::regex_match(line, parts, Pattern)) {
        throw std::runtime_error("not a text primitive: " + line);
    }
    return {std::stod(parts[1]), std::stod(parts[2]),  parts[3], parts[4], std::stod(parts[5]),
            parts[6].matched,    parts[7] == "#FF0000"};
}

std::string shown(const Run& run)
{
    constexpr double IndexShift = 0.3 * TermPicture::LineHeight;
    const bool index = run.size == 0.9 * TermPicture::Size;
    std::string text = run.font == "Tahoma" ? "" : run.font + ":";
    for (const char c : run.text) {
        text += c == ' ' ? '_' : c;
    }
    text += "@" + number(run.x);
    if (index && run.y == IndexShift) {
        text += "v";
    } else if (index && run.y == -IndexShift) {
        text += "^";
    } else if (run.y != 0 || run.size != TermPicture::Size) {
        text += "," + number(run.y);
        text += run.size == TermPicture::Size ? "" : "/" + number(run.size);
    }
    return text + (run.bold ? "*" : "") + (run.red ? "!" : "");
}

std::string shownLine(const std::string& line)
{
    static const std::regex Pattern(R"(line (\S+) - (\S+) .*)");
    return std::regex_replace(line, Pattern, "line $1-$2");
}

} // namespace

TermPicture::TermPicture()
    : backend_(std::make_shared<headless::RecordingBackend>(PixelSize{400, 100},
                                                            std::make_shared<headless::FixedTextMetrics>())),
      device_(backend_)
{
    device_.FontSize(Size);
}

std::string TermPicture::runs() const
{
    std::vector<Run> pending;
    std::string result;
    const auto add = [&result](const std::string& piece) { result += (result.empty() ? "" : " ") + piece; };
    const auto flush = [&] {
        if (!pending.empty()) {
            add(shown(pending.back()));
            pending.clear();
        }
    };
    for (const std::string& line : lines()) {
        if (!line.starts_with("text ")) {
            flush();
            add(shownLine(line));
            continue;
        }
        const Run run = parseText(line);
        if (!pending.empty() && pending.back().goesOnIn(run)) {
            pending.back().text += run.text;
        } else {
            flush();
            pending = {run};
        }
    }
    flush();
    return result;
}

} // namespace phial::test
