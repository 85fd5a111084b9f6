// The puzzle of the periodic table: `puzzle`, or `puzzle --shots DIR` to draw its states into picture files.

#include "common/RunLearningApp.h"
#include "puzzle/Puzzle.h"

int main(int argc, char** argv)
{
    return learning::runLearningApp(
        argc, argv,
        {.identifier = u"Puzzle",
         .name = u"Elemente-Puzzle",
         .version = u"" PHIAL_VERSION,
         .pictures = learning::PictureTour::Round},
        [] { return std::make_unique<puzzle::Puzzle>(puzzle::loadPuzzleData()); });
}
