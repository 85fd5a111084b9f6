#include "AtomCounting.h"
#include "common/RunLearningApp.h"

int main(int argc, char** argv)
{
    return learning::runLearningApp(argc, argv,
                                    {.identifier = u"Atome", .name = u"Atome zählen", .version = u"1.0"},
                                    [] { return std::make_unique<atoms::AtomCounting>(); });
}
