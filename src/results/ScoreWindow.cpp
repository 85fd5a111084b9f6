#include "results/cls_DataScores.h"
#include "results/frm_DialogHighscore.h"

namespace phial
{

namespace
{

enum class ListPlace : std::uint8_t { Elsewhere, ThisComputer };

/// Shows the list, which outlives the window; gives whether the user wants it to be reset.
bool showList(cls_DataScores& list, StringView title, std::int32_t rank, bool showScore, ListPlace place)
{
    frm_DialogHighscore dialog;
    dialog.DialogTitle(String(title));
    dialog.DialogScores(std::shared_ptr<cls_DataScores>(std::shared_ptr<void>(), &list));
    dialog.DialogRank(rank);
    dialog.DialogShowScore(showScore);
    dialog.DialogLocal(place == ListPlace::ThisComputer);
    dialog.Show();
    return dialog.DialogReset();
}

} // namespace

void cls_DataScores::SHOW(StringView pTitle, std::int32_t pRank, std::optional<bool> pShowScore)
{
    showList(*this, pTitle, pRank, pShowScore.value_or(false), ListPlace::Elsewhere);
}

void cls_DataScores::SHOWLOCAL(StringView pTitle, std::int32_t pRank, std::optional<bool> pShowScore)
{
    if (showList(*this, pTitle, pRank, pShowScore.value_or(false), ListPlace::ThisComputer)) {
        CLEAR();
    }
}

} // namespace phial
