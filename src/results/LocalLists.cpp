#include "results/LocalLists.h"

#include "app/cls_App.h"
#include "app/cls_AppURL.h"
#include "app/sys_Global.h"
#include "results/cls_DataScores.h"

namespace phial
{

String resultsFile()
{
    return QVAPP()->URL()->DATAHIGHSCORES() + u"results.qv-rsl";
}

String highscoreFile(StringView module)
{
    return QVAPP()->URL()->DATAHIGHSCORES() + String(module) + u".qv-hsr";
}

void loadOrEmpty(cls_DataScores& scores, StringView file)
{
    if (!scores.LOAD(file)) {
        scores.CLEAR();
    }
}

} // namespace phial
