#include "mascot/DrAtomTest.h"
#include "support/CaseTable.h"

#include <cstdio>
#include <regex>

namespace phial
{

namespace
{

/// The mascot in front of the random numbers that its table was made with.
class MascotTicks : public DrAtomTest
{
protected:
    MascotTicks()
    {
        std::vector<double> numbers;
        for (int at = 0; at < 1009; ++at) {
            numbers.push_back((at * 7919 + at % 13 * 1049) % 10007 / 10007.0);
        }
        outside.random().numbers(numbers);
        outside.display().moveCursor(50, 400);
        form->Show();
    }

    void act(const std::string& deed)
    {
        const auto blank = deed.find(' ');
        const std::string what = deed.substr(0, blank);
        const int value = deed.empty() ? 0 : std::stoi(deed.substr(blank));
        if (what == "click") {
            atom->click();
        } else if (what == "say" || what == "wrong") {
            atom->BUBBLESAY(nullptr, String(static_cast<std::size_t>(value), u'a'), what == "wrong");
        } else if (!what.empty()) {
            setMember(*atom, fromUtf8(what), value);
        }
    }

    static std::string places(const std::string& picture)
    {
        static const std::regex Eyes(R"(arc (\S+) r(\d+)x\d+ .*\narc (\S+) r\d+x\d+ fill)");
        std::smatch found;
        if (picture.find("line 31,31 - 37,31") != std::string::npos ||
            !std::regex_search(picture, found, Eyes)) {
            return "closed";
        }
        return "r" + found[2].str() + " " + found[1].str() + " " + found[3].str();
    }
    static std::string electron(const std::string& picture)
    {
        static const std::regex First(R"(image 11x11 from 0,0 11x11 to (\S+) 11x11)");
        std::smatch found;
        return std::regex_search(picture, found, First) ? found[1].str() : "none";
    }
    static std::string sixDecimals(double value)
    {
        std::array<char, 40> text{};
        std::snprintf(text.data(), text.size(), "%.6f", value);
        return text.data();
    }
    std::string row(const std::string& tick, const std::string& deed)
    {
        const std::string picture = drawn();
        return tick + " | " + deed + " | " + places(picture) + " | " + electron(picture) + " | " +
               std::to_string(static_cast<int>(atom->MOOD())) + " | " + std::to_string(atom->EYESIZE()) +
               " | " + sixDecimals(atom->MOUTHOPEN()) + " | " + std::to_string(atom->MOUTHSIZE()) + " | " +
               sixDecimals(atom->BUBBLETIME);
    }
};

TEST_F(MascotTicks, TenThousandFollowTheirTable)
{
    int now = 0;
    for (const test::CaseRow& expected : test::readCaseTable("mascot_ticks.txt", 8)) {
        const int tick = std::stoi(expected.name.substr(4));
        ticks(tick - now - 1);
        now = tick;
        const std::string deed = toUtf8(expected.columns[0]);
        act(deed);
        ticks();
        std::string whole = expected.name;
        for (const String& column : expected.columns) {
            whole += " | " + toUtf8(column);
        }
        ASSERT_EQ(row(expected.name, deed), whole);
    }
    EXPECT_EQ(now, 10'000);
}

} // namespace

} // namespace phial
