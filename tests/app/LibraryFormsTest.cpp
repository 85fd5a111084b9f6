#include "support/LibraryForms.h"

#include "app/UserTest.h"
#include "app/cls_Language.h"
#include "headless/Hand.h"
#include "support/Places.h"
#include "support/VisibleTexts.h"

#include <gmock/gmock-matchers.h>
#include <set>

namespace phial
{

namespace
{

using test::LibraryForm;
using test::visibleTexts;
using ::testing::Contains;

constexpr StringView Separator = u"|";

struct Halves {
    String german;
    String english;

    friend bool operator==(const Halves&, const Halves&) = default;
};

Halves halvesOf(StringView pair)
{
    const std::size_t at = pair.find(Separator);
    return {String(pair.substr(0, at)), String(pair.substr(at + 1))};
}

std::span<const ControlDesign> controlsOf(const LibraryForm& row)
{
    return row.design ? row.design->controls : std::span<const ControlDesign>();
}

std::vector<Halves> pairsOf(const LibraryForm& row)
{
    std::vector<Halves> pairs;
    if (row.design) {
        pairs.push_back(halvesOf(row.design->caption));
    }
    for (const ControlDesign& control : controlsOf(row)) {
        pairs.push_back(halvesOf(control.text));
        pairs.push_back(halvesOf(control.spokenName));
        for (const ButtonDesign& button : control.bar) {
            pairs.push_back(halvesOf(button.caption));
        }
    }
    for (const StringView pair : row.pairs) {
        pairs.push_back(halvesOf(pair));
    }
    for (const String& pair : row.madePairs) {
        pairs.push_back(halvesOf(pair));
    }
    return pairs;
}

/// Every form of the library, made and opened as in a program "Molmasse" that a pupil uses for the second
/// time.
class LibraryFormsTest : public UserTest
{
protected:
    LibraryFormsTest()
    {
        makeAvatars(2);
        storeNames({u"Maxi:a01"});
        start();
        auto& config = *QVAPP()->CONFIG();
        config.NAME(u"Molmasse");
        config.VERSION(u"5.1.2");
        config.COPYRIGHT(u"(c) Somebody");
        config.productAddress(u"https://maker.example/phial/"); // else its link is not shown
        makeFolder(u"installed\\apps\\Molmasse");
        goTo(path(u"installed\\apps\\Molmasse"));
        LNG()->CURRENT(ID_Language_German);
    }

    static test::MadeForm open(const LibraryForm& row)
    {
        const test::MadeForm made = row.make();
        if (row.shown) {
            made.form->Show();
        } else {
            made.form->load();
        }
        return made;
    }
};

TEST_F(LibraryFormsTest, EachFormOfTheSourcesHasARow)
{
    std::set<String> listed;
    for (const LibraryForm& row : test::libraryForms()) {
        listed.emplace(row.name);
    }
    std::set<String> present;
    const std::filesystem::path sources = test::sourceFolder() / "src";
    for (const auto& file : std::filesystem::recursive_directory_iterator(sources)) {
        const std::filesystem::path name = file.path().filename();
        if (name.string().starts_with("frm_") && name.extension() == ".h") {
            present.insert(name.stem().u16string());
        }
    }
    EXPECT_EQ(present, listed);
}

TEST_F(LibraryFormsTest, EachTextHasTheDesignsHalvesAndComesBackUnchanged)
{
    for (const LibraryForm& row : test::libraryForms()) {
        SCOPED_TRACE(toUtf8(row.name));
        LNG()->CURRENT(ID_Language_German);
        const test::MadeForm made = open(row);
        const std::vector<Halves> pairs = pairsOf(row);

        const auto german = visibleTexts(*made.form);
        LNG()->CURRENT(ID_Language_English);
        const auto english = visibleTexts(*made.form);
        LNG()->CURRENT(ID_Language_German);
        EXPECT_EQ(visibleTexts(*made.form), german);

        EXPECT_EQ(english.size(), german.size());
        for (const auto& [place, text] : german) {
            SCOPED_TRACE(toUtf8(place));
            const auto other = english.find(place);
            ASSERT_NE(other, english.end());
            const bool isData = std::ranges::find(row.data, StringView(text)) != row.data.end();
            if (isData) {
                EXPECT_EQ(other->second, text);
            } else {
                EXPECT_THAT(pairs, Contains(Halves{text, other->second})) << toUtf8(text);
            }
        }
    }
}

TEST_F(LibraryFormsTest, EachTextOfTheDesignStandsOnItsControl)
{
    for (const LibraryForm& row : test::libraryForms()) {
        SCOPED_TRACE(toUtf8(row.name));
        LNG()->CURRENT(ID_Language_German);
        const test::MadeForm made = open(row);
        const auto german = visibleTexts(*made.form);
        LNG()->CURRENT(ID_Language_English);
        const auto english = visibleTexts(*made.form);
        for (const ControlDesign& item : controlsOf(row)) {
            if (item.text.empty()) {
                continue;
            }
            const String name =
                String(item.name) + (item.index < 0 ? String() : u"(" + plainText(item.index) + u")");
            const auto shows = [&](const std::map<String, String>& texts, const String& half) {
                return std::ranges::any_of(texts, [&](const auto& entry) {
                    const bool isData =
                        std::ranges::find(row.data, StringView(entry.second)) != row.data.end();
                    return entry.first.starts_with(name + u".") && (isData || entry.second == half);
                });
            };
            const Halves halves = halvesOf(item.text);
            EXPECT_TRUE(shows(german, halves.german)) << toUtf8(name);
            EXPECT_TRUE(shows(english, halves.english)) << toUtf8(name);
        }
    }
}

TEST_F(LibraryFormsTest, EscapeAndTheFramesCloseEndAFormThatCanBeAborted)
{
    for (const LibraryForm& row : test::libraryForms()) {
        SCOPED_TRACE(toUtf8(row.name));
        const test::MadeForm byKey = open(row);
        headless::strike(*byKey.form, {.key = Key::Escape});
        outside.advance(0.2); // some close a moment later
        EXPECT_EQ(byKey.form->isLoaded(), !row.aborts);
        const test::MadeForm byFrame = open(row);
        byFrame.form->inputClose();
        EXPECT_FALSE(byFrame.form->isLoaded());
    }
}

TEST_F(LibraryFormsTest, NoTextOfAFormIsLeftUntranslated)
{
    for (const LibraryForm& row : test::libraryForms()) {
        const test::MadeForm made = open(row);
        for (const auto& [place, text] : visibleTexts(*made.form)) {
            EXPECT_EQ(text.find(Separator), String::npos) << toUtf8(place);
        }
    }
}

} // namespace

} // namespace phial
