// The molar-mass trainer: `molmasse`, or `molmasse --shots DIR` to draw its states into picture files.

#include "common/RunLearningApp.h"
#include "molmasse/Trainer.h"

int main(int argc, char** argv)
{
    return learning::runLearningApp(
        argc, argv, {.identifier = u"Molmasse", .name = u"Molmassen-Trainer", .version = u"" PHIAL_VERSION},
        [] { return std::make_unique<molmasse::Trainer>(molmasse::loadTrainerData()); });
}
