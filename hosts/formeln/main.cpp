// The formula trainer: `formeln`, or `formeln --shots DIR` to draw its states into picture files.

#include "common/RunLearningApp.h"
#include "formeln/FormulaTrainer.h"

int main(int argc, char** argv)
{
    return learning::runLearningApp(
        argc, argv,
        {.identifier = u"Formeln",
         .name = u"Formel-Trainer",
         .version = u"" PHIAL_VERSION,
         .pictures = learning::PictureTour::Round},
        [] { return std::make_unique<formeln::FormulaTrainer>(formeln::loadFormulaData()); });
}
