#pragma once

#include "common/LearningApp.h"
#include "periodic/ctl_PSE.h"
#include "puzzle/PuzzleTasks.h"

namespace puzzle
{

/// The puzzle: tiles with symbols are put where they belong in the periodic table.
class Puzzle final : public learning::LearningApp
{
public:
    explicit Puzzle(PuzzleData data) : data_(std::move(data)) {}

    const learning::AppTexts& texts() const override;
    phial::String missing() const override;
    phial::StringView highscore() const override { return u"PUZZLE"; }
    phial::String complaint() const override { return data_.tasks.complaint(); }
    std::vector<learning::LevelTitle> levels() const override { return data_.tasks.titles(); }
    learning::TaskRoom room() const override { return learning::TaskRoom::Board; }
    std::span<const phial::ControlDesign> controls() const override;
    void attach(phial::Form& form) override;
    void TRANSLATE() override;

    bool hasTask(phial::StringView name) const override { return data_.tasks.holds(name); }
    int begin(std::size_t level, const learning::TaskChoice& choice) override
    {
        return data_.tasks.begin(level, choice);
    }
    void show(int position) override;
    phial::String taskName() const override { return task_.text; }
    phial::String spoken() const override;
    phial::String taskTitle() const override { return symbols(); }
    phial::String answer() const override;
    learning::Judgement judge() override;
    void retry() override;
    void close() override;
    phial::ControlPtr field() const override;

    phial::String solution() const override;
    phial::String unreadable() const override;
    phial::String hint() const override;
    phial::String remark() const override;
    phial::String support() const override;
    phial::String working() const override;
    phial::StringView helpChapter() const override { return u"K1"; }
    std::vector<phial::StringView> mastered() const override;
    void fill(Sample sample) override;

private:
    /// A tile of the task, which has the slot of its place in the list.
    struct Tile {
        const ElementFacts* element = nullptr;
        std::vector<phial::String>
            judged{}; ///< the symbols of the places that were judged, the last one last

        bool isConfirmed() const { return lies(element->symbol); }
        /// Whether that was its place when it was judged last.
        bool lies(const phial::String& place) const { return !judged.empty() && judged.back() == place; }
    };
    enum class Obstacle { None, NotPlaced, OnOccupied, TwoOnOne };

    phial::String symbols() const;
    phial::String placeOf(std::size_t slot) const;
    Obstacle obstacle() const;
    void showTiles();
    void showGuides();
    bool isSolved() const;
    void frame(const Tile& tile, phial::Colour colour);
    void put(std::size_t slot, const ElementFacts& place);
    const ElementFacts& wrongPlaceFor(const Tile& tile) const;

    PuzzleData data_;
    learning::ListedTask task_;
    std::vector<Tile> tiles_;
    std::set<int> empty_; ///< the protons of the elements whose places are
    bool isOpen_ = false;
    phial::Form* form_ = nullptr;
    std::shared_ptr<phial::ctl_PSE> table_;
};

} // namespace puzzle
