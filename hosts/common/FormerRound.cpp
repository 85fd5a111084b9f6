#include "common/FormerRound.h"

#include "common/FrameTexts.h"
#include "common/PupilSetting.h"
#include "core/CoreNumbers.h"
#include "core/CoreRegistry.h"
#include "core/CoreRoot.h"
#include "core/CoreStringList.h"
#include "core/RuntimeError.h"

#include <vector>

namespace learning
{

using phial::String;

namespace
{

constexpr auto RoundsHive = phial::SettingsHive::CurrentUser;
constexpr std::size_t MostLevels = 50; // of one pupil; the latest

/// The level's rounds as they are kept: its title, the solved tasks, all tasks.
struct KeptRound {
    String exercise;
    String solved;
    String tasks;
};

std::vector<KeptRound> readRounds(const String& path)
{
    std::vector<KeptRound> rounds;
    phial::ignoringErrors([&] {
        std::vector<String> texts;
        for (const String& text :
             phial::coreRoot().CoreRegistry().CoreRegistryRead().ReadList(RoundsHive, path)) {
            texts.push_back(text);
        }
        for (std::size_t at = 0; at + 2 < texts.size() && rounds.size() < MostLevels; at += 3) {
            rounds.push_back({texts[at], texts[at + 1], texts[at + 2]});
        }
    });
    return rounds;
}

void writeRounds(const String& path, const std::vector<KeptRound>& rounds)
{
    phial::CoreStringList list;
    for (const KeptRound& round : rounds) {
        list.Add(round.exercise);
        list.Add(round.solved);
        list.Add(round.tasks);
    }
    phial::ignoringErrors(
        [&] { phial::coreRoot().CoreRegistry().CoreRegistryWrite().WriteList(RoundsHive, path, list); });
}

} // namespace

std::optional<int> keepRound(phial::StringView pupil, const RoundResult& result)
{
    const String path = pupilSetting(u"Rounds", pupil);
    std::vector<KeptRound> rounds = readRounds(path);
    std::optional<int> before;
    std::erase_if(rounds, [&](const KeptRound& round) {
        double solved = 0;
        if (round.exercise == result.exercise && round.tasks == number(result.tasks) &&
            phial::CoreNumbers::ToDouble(round.solved, solved) && solved >= 0 && solved <= result.tasks) {
            before = static_cast<int>(solved);
        }
        return round.exercise == result.exercise;
    });
    if (rounds.size() == MostLevels) {
        rounds.erase(rounds.begin());
    }
    rounds.push_back({result.exercise, number(result.solved), number(result.tasks)});
    writeRounds(path, rounds);
    return before;
}

} // namespace learning
