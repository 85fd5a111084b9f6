#include "puzzle/Puzzle.h"

#include "common/FrameDesign.h"
#include "common/FrameTexts.h"
#include "common/TermFit.h"
#include "core/RuntimeError.h"
#include "puzzle/Neighbours.h"
#include "puzzle/WrongPlace.h"

#include <algorithm>

namespace puzzle
{

using learning::Judgement;
using learning::translate;
using phial::String;

namespace
{

constexpr learning::AppTexts Texts{
    .title = u"Elemente-Puzzle|Element puzzle",
    .question = u"Wo steht welches Element?|Which element stands where?",
    .introduction =
        u"Lege die Kärtchen an ihren Platz im Periodensystem: ziehen oder erst das Kärtchen, dann den Platz "
        u"antippen.<br>Wähle, wie schwer es werden soll:|"
        u"Put the tiles where they belong in the periodic table: drag them, or tap the tile and then its "
        u"place.<br>Choose how hard it shall be:",
    .note = u"Eine Aufgabe ist gelöst, wenn alle ihre Kärtchen richtig liegen.<br>"
            u"Was nach einem Versuch richtig liegt, bleibt liegen.|"
            u"A task is solved when all its tiles lie in the right place.<br>"
            u"What lies right after a try stays where it is.",
    .waiting = u"Sobald deine Lehrkraft das Elemente-Puzzle freigibt, geht es hier von selbst weiter.|"
               u"As soon as your teacher opens the element puzzle for you, it goes on here by itself.",
    .solved = u"{1} von {2} Aufgaben gelöst|{1} of {2} tasks solved",
    .oneMore = u", eine mehr als zuletzt|, one more than last time",
    .more = u", {1} mehr als zuletzt|, {1} more than last time",
    .diploma = u"Elemente-Diplom|Element Diploma",
    .certificate =
        u"hat in {1} von {2} Aufgaben (Schwierigkeit: {3}) alle Elemente an ihren Platz gelegt und "
        u"dabei {4} von {5} Punkten erreicht.\r\nNote: {6}|"
        u"has put all elements in their places in {1} of {2} tasks (difficulty: {3}) and reached "
        u"{4} of {5} points.\r\nMark: {6}",
};

constexpr double TitleSize = 14; // points

// Of frames within cells, which are light in each set of the app's colours.
constexpr phial::Colour RightFrame = phial::Palette::shade(0x00703C);
constexpr phial::Colour SolutionFrame = phial::Palette::shade(0x006AB5);

constexpr phial::ControlDesign Controls[] = {
    phial::design<phial::ctl_PSE>(u"pse_Table", learning::frame_design::BoardPlaces::Board)
        .focusable()
        .inside(u"pan_Task")
        .spoken(u"Periodensystem|Periodic table"),
    phial::design<phial::ctl_Label>(u"lab_Theme", learning::frame_design::BoardPlaces::Title)
        .inside(u"pan_Task")
        .font(TitleSize, phial::FontWeight::Bold)
        .ink(phial::Palette::Ink)
        .align(phial::TEXTALIGN::MiddleLeft)
        .set(u"PlainText", true),
};

/// With a blank of no width behind it the symbol is none of the table's elements, so that its tile shows it
/// without protons and mass.
String bare(const String& symbol)
{
    return symbol + u'\u200B';
}

std::int32_t slotOf(std::size_t tile)
{
    return static_cast<std::int32_t>(tile);
}

} // namespace

const learning::AppTexts& Puzzle::texts() const
{
    return Texts;
}

String Puzzle::missing() const
{
    if (data_.elements.isEmpty()) {
        return translate(u"Die Datei mit den Elementen fehlt oder ist leer:<br>{1}<br>"
                         u"Bitte installiere QV Phial neu.",
                         u"The file of the elements is missing or empty:<br>{1}<br>"
                         u"Please install QV Phial again.",
                         {data_.elementFile});
    }
    return data_.tasks.isEmpty()
               ? translate(u"Die Datei mit den Kärtchen fehlt oder enthält keine Aufgabe:<br>{1}",
                           u"The file of the tiles is missing or holds no task:<br>{1}", {data_.tasks.path()})
               : String();
}

std::span<const phial::ControlDesign> Puzzle::controls() const
{
    return Controls;
}

void Puzzle::attach(phial::Form& form)
{
    form_ = &form;
    table_ = form.control<phial::ctl_PSE>(u"pse_Table");
    const auto& board = learning::frame_design::BoardPlaces::Board;
    table_->FIXEDSIZE(true);
    table_->frame().pixelRectangle({board.left, board.top, board.width, board.height});
    table_->MODE(phial::enm_PSEMode::ID_PSEMode_Place);
    table_->Colouring(phial::TableColours::ByTheme);
    table_->BACKCOLOR(phial::Palette::Surface);
    phial::ignoringErrors([this] { table_->LOAD(data_.elementFile); });
}

void Puzzle::TRANSLATE()
{
    const String name = translate(task_.germanName, task_.englishName);
    learning::showFitting(*form_->control<phial::ctl_Label>(u"lab_Theme"),
                          name.empty() ? translate(u"Wohin gehört das?", u"Where does it belong?") : name,
                          TitleSize);
}

// The round.

void Puzzle::show(int position)
{
    task_ = data_.tasks.at(position);
    tiles_.clear();
    for (const ElementFacts* const element : elementsOf(task_.text, data_.elements)) {
        tiles_.push_back({element});
    }
    empty_ = emptyPlaces(elementsOf(task_.text, data_.elements), data_.tasks.level(), data_.elements);
    isOpen_ = true;
    TRANSLATE();
    showGuides();
    showTiles();
}

/// Seen with the next redraw.
void Puzzle::showGuides()
{
    const auto guides = std::make_shared<phial::CoreStringList>();
    const auto grey = std::make_shared<phial::CoreStringList>();
    for (const ElementFacts& element : data_.elements.all()) {
        (empty_.contains(element.protons) ? grey : guides)->Add(element.symbol);
    }
    table_->FADED(guides);
    table_->GONE(grey); // the colour of an empty place would tell which tile belongs there
    table_->HIGHLIGHTS(std::make_shared<phial::CoreTokenList>());
}

void Puzzle::showTiles()
{
    table_->DRAGCLEAR();
    const bool tellsProtons = guidesOf(data_.tasks.level().key) == Guides::Neighbours;
    for (const Tile& tile : tiles_) {
        table_->DRAGADD(tellsProtons ? tile.element->symbol : bare(tile.element->symbol));
    }
}

String Puzzle::symbols() const
{
    String symbols;
    for (const Tile& tile : tiles_) {
        symbols += (symbols.empty() ? String() : String(u", ")) + tile.element->symbol;
    }
    return symbols;
}

String Puzzle::spoken() const
{
    const String name = translate(task_.germanName, task_.englishName);
    return name.empty() ? symbols() : name + u": " + symbols();
}

phial::ControlPtr Puzzle::field() const
{
    return isOpen_ ? phial::ControlPtr(table_) : form_->control<phial::Control>(u"but_Check");
}

// What an answer is worth.

String Puzzle::placeOf(std::size_t slot) const
{
    return table_->DRAGSYMBOLDROP(slotOf(slot));
}

String Puzzle::answer() const
{
    String answer;
    for (std::size_t slot = 0; slot < tiles_.size(); ++slot) {
        answer += placeOf(slot) + u" ";
    }
    return answer;
}

Puzzle::Obstacle Puzzle::obstacle() const
{
    std::set<String> places;
    for (std::size_t slot = 0; slot < tiles_.size(); ++slot) {
        const ElementFacts* const place = data_.elements.find(placeOf(slot));
        if (!place) {
            return Obstacle::NotPlaced;
        }
        if (!empty_.contains(place->protons)) {
            return Obstacle::OnOccupied;
        }
        if (!places.insert(place->symbol).second) {
            return Obstacle::TwoOnOne;
        }
    }
    return Obstacle::None;
}

bool Puzzle::isSolved() const
{
    return std::ranges::all_of(tiles_, &Tile::isConfirmed);
}

Judgement Puzzle::judge()
{
    if (obstacle() != Obstacle::None) {
        return Judgement::Unreadable;
    }
    for (std::size_t slot = 0; slot < tiles_.size(); ++slot) {
        tiles_[slot].judged.push_back(placeOf(slot));
    }
    return isSolved() ? Judgement::Right : Judgement::Wrong;
}

/// Tiles that lie where they were found wrong go home; what has been moved since stays. Those that were found
/// right are marked.
void Puzzle::retry()
{
    for (std::size_t slot = 0; slot < tiles_.size(); ++slot) {
        if (tiles_[slot].isConfirmed()) {
            frame(tiles_[slot], RightFrame);
        } else if (tiles_[slot].lies(placeOf(slot))) {
            table_->DRAGRESET(slotOf(slot));
        }
    }
    table_->REDRAW();
}

/// The table shows the elements of the task where they belong.
void Puzzle::close()
{
    isOpen_ = false;
    table_->DRAGCLEAR();
    for (const Tile& tile : tiles_) {
        empty_.erase(tile.element->protons);
    }
    showGuides();
    for (const Tile& tile : tiles_) {
        frame(tile, isSolved() ? RightFrame : SolutionFrame);
    }
    table_->REDRAW();
}

/// The tile and the place where it belongs, which it lies on.
void Puzzle::frame(const Tile& tile, phial::Colour colour)
{
    for (const String& symbol : {tile.element->symbol, bare(tile.element->symbol)}) {
        table_->HIGHLIGHTS()->Add(symbol, static_cast<std::int32_t>(colour.value));
    }
}

// What the pupil reads.

String Puzzle::solution() const
{
    if (!isSolved()) {
        return translate(u"die umrandeten Plätze", u"The framed places");
    }
    return tiles_.size() == 1 ? translate(u"Am richtigen Platz", u"In the right place")
                              : translate(u"Alle am richtigen Platz", u"All in the right place");
}

String Puzzle::unreadable() const
{
    switch (obstacle()) {
    case Obstacle::OnOccupied:
        return translate(u"Lege die Kärtchen nur auf graue Plätze. Die anderen sind schon besetzt.",
                         u"Put the tiles on grey places only. The others are taken.");
    case Obstacle::TwoOnOne:
        return translate(u"Auf jeden Platz gehört nur ein Kärtchen.", u"Each place is for one tile only.");
    case Obstacle::None:
    case Obstacle::NotPlaced:
        break;
    }
    return translate(u"Lege erst jedes Kärtchen auf einen grauen Platz.",
                     u"First put each tile on a grey place.");
}

String Puzzle::hint() const
{
    std::vector<const ElementFacts*> open;
    for (const Tile& tile : tiles_) {
        if (!tile.isConfirmed()) {
            open.push_back(tile.element);
        }
    }
    return trendsText(open, data_.elements);
}

String Puzzle::remark() const
{
    const auto wrong = std::ranges::find_if_not(tiles_, &Tile::isConfirmed);
    if (wrong == tiles_.end() || wrong->judged.empty()) {
        return {};
    }
    const ElementFacts* const place = data_.elements.find(wrong->judged.back());
    return place ? explained(slipOf(*wrong->element, *place), *wrong->element, *place) : String();
}

String Puzzle::support() const
{
    String protons;
    for (const Tile& tile : tiles_) {
        if (!tile.isConfirmed()) {
            protons += (protons.empty() ? String() : String(u", ")) + tile.element->symbol + u" " +
                       learning::number(tile.element->protons);
        }
    }
    return translate(u"Zahl der Protonen: {1}. In dieser Ordnung stehen sie im Periodensystem.",
                     u"Number of protons: {1}. The periodic table has them in this order.", {protons});
}

String Puzzle::working() const
{
    return placesText(elementsOf(task_.text, data_.elements));
}

std::vector<phial::StringView> Puzzle::mastered() const
{
    return masteredIn(elementsOf(task_.text, data_.elements));
}

// For pictures.

void Puzzle::put(std::size_t slot, const ElementFacts& place)
{
    constexpr double Columns = phial::TableGrid::Columns;
    constexpr double Rows = phial::TableGrid::Rows;
    const auto at = [](const phial::PixelRectangle& cell) {
        return phial::PointerEvent{.X = cell.left + cell.width / 2, .Y = cell.top + cell.height / 2};
    };
    const phial::PixelRectangle size = table_->frame().pixelRectangle();
    const phial::TableGrid grid{size.width / Columns - 1, size.height / Rows - 1};
    table_->DRAGRESET(slotOf(slot));
    const double home = static_cast<double>(slot) * 1.5 + 3;
    phial::Control& table = *table_;
    table.pointerDown(at(grid.area(home, 9, 1, 1)));
    table.pointerMove(at(grid.cell(place.place.column, place.place.row)));
    table.pointerUp(at(grid.cell(place.place.column, place.place.row)));
}

/// An empty place on which no tile belongs, and where this one was not judged yet.
const ElementFacts& Puzzle::wrongPlaceFor(const Tile& tile) const
{
    const auto& all = data_.elements.all();
    const auto found = std::ranges::find_if(all, [&](const ElementFacts& place) {
        const bool isKnown = std::ranges::find(tile.judged, place.symbol) != tile.judged.end();
        const bool isAnothers =
            std::ranges::any_of(tiles_, [&](const Tile& other) { return other.element == &place; });
        return empty_.contains(place.protons) && !isKnown && !isAnothers;
    });
    return found == all.end() ? all.front() : *found;
}

void Puzzle::fill(Sample sample)
{
    if (sample == Sample::Unreadable) {
        table_->DRAGRESET(0);
        return;
    }
    const ElementFacts& wrong = wrongPlaceFor(tiles_.front());
    for (std::size_t slot = 0; slot < tiles_.size(); ++slot) {
        put(slot, slot == 0 && sample == Sample::Wrong ? wrong : *tiles_[slot].element);
    }
}

} // namespace puzzle
