#pragma once

#include "common/AppPictures.h"
#include "common/LearningApp.h"

namespace learning
{

/// Who the program is.
struct AppIdentity {
    phial::StringView identifier; ///< names its folders and settings
    phial::StringView name;       ///< as people read it, until the app's window says it in their language
    phial::StringView version;
    PictureTour pictures = PictureTour::Whole; ///< that `--shots` takes
};

/// The whole of a learning app's `main`: starts the system, shows the app in its window, or draws its states
/// into picture files when the command line says `--shots DIR`. Gives the program's exit status.
int runLearningApp(int argc, char** argv, const AppIdentity& identity, const MakeApp& makeApp);

} // namespace learning
